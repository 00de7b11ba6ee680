#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Pch_core.h"
