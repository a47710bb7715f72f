#pragma once

#include <QString>
#include <QStringList>

namespace akarix {
class Sheet;
}

namespace akarix::admin {

/// The reports' names, which are their templates' file names without ".xlsx".
QStringList ReportNames();

/// What keeps a report from showing all that it writes into a template: places outside the printed area,
/// hidden, covered by a merge or too small; and what the reader has met and cannot print. Empty when all is
/// well.
QStringList TemplateFaults(const Sheet& sheet, const QString& report);

}  // namespace akarix::admin
