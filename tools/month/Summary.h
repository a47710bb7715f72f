#pragma once

#include <QString>
#include <vector>

namespace akarix {
class Database;
}

namespace akarix::month {

struct Desk;

struct StepTime {
    QString name;
    double seconds = 0;
};

/// A month as the store holds it, what was met on its way and how long each step took: plain text in columns.
QString SummaryText(Database& db, const Desk& desk, const std::vector<StepTime>& times);

}  // namespace akarix::month
