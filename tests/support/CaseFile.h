#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>
#include <utility>
#include <vector>

#include "platform/runtime/Literals.h"
#include "support/PrintQString.h"

namespace akarix {

inline QStringList LinesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll()).split(u'\n');
}

struct CaseRow {
    QStringList cells;
    std::string line;  ///< as it stands in the file, for the message
};

/// A table of cases in a text file: a line a case, its cells parted by tabs; "# " is a remark, ␣ a blank, ⏎ a
/// new line. \param name of several tables in a file, the one under the line "[name]"
inline std::vector<CaseRow> ReadTable(const QString& path, const QString& name = {}) {
    std::vector<CaseRow> rows;
    QString table;
    for (const QString& line : LinesOf(path)) {
        if (line.isEmpty() || line.startsWith(u"# ")) continue;
        if (!name.isEmpty() && line.startsWith(u'[') && line.endsWith(u']')) {
            table = line.mid(1).chopped(1);
        } else if (table == name) {
            rows.push_back(
                {QString(line).replace(u'␣', u' ').replace(u'⏎', u'\n').split(u'\t'), line.toStdString()});
        }
    }
    EXPECT_FALSE(rows.empty()) << path.toStdString() << ' ' << name.toStdString();
    return rows;
}

struct CaseScript {
    std::string place;  ///< file and line
    bool fresh;         ///< the first one after an empty line
    QStringList given, expected;
};

/// Blocks of "> " lines, each followed by the lines expected of it; "# " is a remark.
inline std::vector<CaseScript> ReadScripts(const QString& path) {
    std::vector<CaseScript> scripts;
    bool fresh = true;
    bool given = false;
    int number = 0;
    for (const QString& line : LinesOf(path)) {
        ++number;
        const bool begins = line.startsWith(u"> ") && !given;
        if (line.isEmpty()) fresh = true;
        given = line.startsWith(u"> ");
        if (begins) {
            const QString place = u"%1:%2"_s.arg(path.section(u'/', -1)).arg(number);
            scripts.push_back({place.toStdString(), std::exchange(fresh, false), {}, {}});
        }
        if (given)
            scripts.back().given += line.mid(2);
        else if (!line.isEmpty() && !line.startsWith(u"# "))
            scripts.back().expected += line;
    }
    EXPECT_FALSE(scripts.empty()) << path.toStdString();
    return scripts;
}

}  // namespace akarix
