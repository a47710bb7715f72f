#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include "platform/dao/DBEngine.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "store/CreateDatabase.h"
#include "store/Settings.h"
#include "store/dbAccess.h"
#include "values/Dates.h"

namespace akarix {

/// The delivered database in a folder of its own, which is the current one while the object lives. Made once
/// for a test program and copied for each test. When it goes, the clock and the settings are those of a
/// start.
class ScratchStore {
 public:
    explicit ScratchStore(bool open = true) : previous_(QDir::currentPath()) {
        static const QByteArray delivered = makeDelivered();
        QFile file(folder_.filePath(DatabaseName()));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(delivered);
        file.close();
        QDir::setCurrent(folder_.path());
        if (open) {
            EXPECT_TRUE(
                OpenDb([](const QString& text, const QString&) { ADD_FAILURE() << text.toStdString(); }));
        }
    }
    ~ScratchStore() {
        CloseDb();
        SetClock(Date());
        gDateMode = 0;
        gPrintPreview = false;
        QDir::setCurrent(previous_);
    }
    ScratchStore(const ScratchStore&) = delete;
    ScratchStore& operator=(const ScratchStore&) = delete;

    QString path(const QString& name = DatabaseName()) const { return folder_.filePath(name); }

    /// Runs statements parted by ";" and line ends; an INSERT may have several rows.
    static void run(const QString& statements) {
        static const QString values = u" VALUES("_s;
        for (const QString& line : statements.split(u";\n"_s, Qt::SkipEmptyParts)) {
            const QString statement = line.trimmed();
            const qsizetype at = statement.indexOf(values);
            if (at < 0) {
                if (!statement.isEmpty()) gDb->Execute(statement);
                continue;
            }
            const QString head = statement.left(at + values.size());
            for (const QString& row : statement.mid(head.size()).chopped(1).split(u"),("_s))
                gDb->Execute(head + row + u')');
        }
    }

    /// The rows of a question, "a|b|c" each; Null is "-".
    static QStringList rows(const QString& sql) {
        QStringList lines;
        Recordset set = gDb->OpenRecordset(sql);
        for (; !set.Eof(); set.MoveNext()) {
            QStringList cells;
            for (int i = 0; i < set.FieldCount(); ++i) {
                const Variant value = set.Fields(i).Value();
                cells.append(value.IsNull() ? u"-"_s : CStr(value));
            }
            lines.append(cells.join(u'|'));
        }
        set.Close();
        return lines;
    }

 private:
    static QByteArray makeDelivered() {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"delivered.mdb"_s);
        CreateDelivered(path);
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir folder_;
    QString previous_;
};

}  // namespace akarix
