#include "model/Interval.h"

Interval::Interval() : Interval(Date(1, 1, 2), Date(1, 1, 1), MonthlyType()) {}

Interval::Interval(const Date& begin, const Date& end, const EnumPeriodicity& periodicity)
    : begin_(begin), end_(end), periodicity_(periodicity) {}
