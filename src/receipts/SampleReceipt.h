#pragma once

#include "core/Settings.h"

// The receipt of an invented sale under settings that need not be in force, line by line as a port would get it. The
// settings in force stay.
QString SampleReceipt(const Settings& settings);
