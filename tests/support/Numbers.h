#ifndef TESTS_SUPPORT_NUMBERS_H
#define TESTS_SUPPORT_NUMBERS_H

#include <cmath>
#include <limits>

//! What the plugin takes two quantities to be equal by, with its nearest neighbours.
constexpr double tolerance = 0.0005;
const double justBelow = std::nextafter(tolerance, 0.0);
const double justAbove = std::nextafter(tolerance, 1.0);

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

#endif
