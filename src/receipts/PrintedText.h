#pragma once

#include <QString>
#include <functional>

// What `print` writes on channel 1, as it would stand on paper; nothing is printed.
QString PrintedText(const std::function<void()>& print);
