#pragma once

#include <QString>

#include <functional>

/// What has been proved and what has not: a line each on standard output.
namespace Report {

void tell(bool proved, const QString &what, const QString &seen = {});
int failures();

/// Lets events happen until \a condition holds; false when it does not within some seconds.
bool happens(const std::function<bool()> &condition);

} // namespace Report
