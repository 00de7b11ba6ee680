#pragma once

#include "values/Value.h"

// Values in the texts of cases: "null", "text Čaj", "whole 7", "money 1.5", "double 0.1", "date 2024-04-03",
// "time 14:05:09", "yes True"; a number alone is what a text says in the C locale.
namespace drivers {

values::Value ValueOf(const QString& told);
QString Told(const values::Value& value);

values::Money MoneyOf(const QString& text);
QString PlainText(values::Money money);

}  // namespace drivers
