#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "admin/Command.h"

namespace akarix::admin {
namespace {

TEST(Admin, RefusesWhatItDoesNotUnderstand) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.mdb"));
    struct Case {
        const char* arguments;
        int code;
    };
    const Case cases[] = {
        {"", WrongUse},
        {"make", WrongUse},
        {"--help", Done},
        {"sample --help", Done},
        {"sample FILE --customers 0", WrongUse},
        {"sample FILE --customers 32001", WrongUse},
        {"sample FILE --months x", WrongUse},
        {"sample FILE --until 2011/13", WrongUse},
        {"sample FILE --colour red", WrongUse},
        {"create FILE other", WrongUse},
        {"create FOLDER", Failed},
        {"create FOLDER/none/a.mdb", Failed},
    };
    for (const Case& c : cases) {
        QStringList arguments = QString::fromUtf8(c.arguments).split(u' ', Qt::SkipEmptyParts);
        for (QString& argument : arguments) {
            argument.replace(QStringLiteral("FILE"), file).replace(QStringLiteral("FOLDER"), folder.path());
        }
        EXPECT_EQ(admin::Run(arguments), c.code) << c.arguments;
    }
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(Admin, TouchesAnExistingFileOnDemandAlone) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.mdb"));
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("mine");
    file.close();
    EXPECT_EQ(admin::Run({QStringLiteral("create"), path}), Failed);
    EXPECT_EQ(QFile(path).size(), 4);
    EXPECT_EQ(admin::Run({QStringLiteral("create"), path, QStringLiteral("--force")}), Done);
    EXPECT_GT(QFile(path).size(), 4096);
    EXPECT_EQ(admin::Run({QStringLiteral("sample"), path, QStringLiteral("--customers"), QStringLiteral("5"),
                          QStringLiteral("--months"), QStringLiteral("1"), QStringLiteral("--force")}),
              Done);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("a.mdb")});
}

TEST(Admin, EveryCommandIsInTheManualWithItsOptions) {
    QFile page(QStringLiteral(AKARIX_SOURCE_DIR "/docs/man/akarix-admin.1"));
    ASSERT_TRUE(page.open(QFile::ReadOnly));
    const QString manual = QString::fromUtf8(page.readAll()).remove(u'\\');
    static const QRegularExpression option(QStringLiteral("--[a-z]+"));
    for (const Command& command : Commands()) {
        const qsizetype at = manual.indexOf(QStringLiteral("\n.SS %1\n").arg(command.name));
        ASSERT_GE(at, 0) << command.name.toStdString();
        const QString section = manual.mid(at, manual.indexOf(QStringLiteral("\n.S"), at + 1) - at);
        for (const QRegularExpressionMatch& match : option.globalMatch(command.help)) {
            EXPECT_TRUE(section.contains(match.captured())) << match.captured().toStdString();
        }
    }
}

}  // namespace
}  // namespace akarix::admin
