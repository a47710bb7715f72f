#pragma once

#include <QString>

namespace akarix::admin {

constexpr int weekdays = 7;

/// One of the copies that the program makes when it ends: one for each day of the week.
struct WeekdayCopy {
    int number = 0;  ///< 1 (Sunday) to 7
    QString path;    ///< of the machine
};

/// "日" for 1.
QString weekdayName(int number);

/// The folder that the file BKPath of the current directory names, as the program reads it; raises 53 when
/// nobody has chosen one yet.
QString backupFolder();
WeekdayCopy copyOf(const QString& folder, int number);

}  // namespace akarix::admin
