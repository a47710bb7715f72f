#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "admin/Command.h"
#include "platform/runtime/Literals.h"

namespace akarix::admin {
namespace {

TEST(Admin, RefusesWhatItDoesNotUnderstand) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"a.mdb"_s);
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
        for (QString& argument : arguments)
            argument.replace(u"FILE"_s, file).replace(u"FOLDER"_s, folder.path());
        EXPECT_EQ(admin::Run(arguments), c.code) << c.arguments;
    }
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(Admin, TouchesAnExistingFileOnDemandAlone) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.mdb"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("mine");
    file.close();
    EXPECT_EQ(admin::Run({u"create"_s, path}), Failed);
    EXPECT_EQ(QFile(path).size(), 4);
    EXPECT_EQ(admin::Run({u"create"_s, path, u"--force"_s}), Done);
    EXPECT_GT(QFile(path).size(), 4096);
    EXPECT_EQ(admin::Run({u"sample"_s, path, u"--customers"_s, u"5"_s, u"--months"_s, u"1"_s, u"--force"_s}),
              Done);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"a.mdb"_s});
}

TEST(Admin, EveryCommandIsInTheManualWithItsOptions) {
    QFile page(QStringLiteral(AKARIX_SOURCE_DIR "/docs/man/akarix-admin.1"));
    ASSERT_TRUE(page.open(QFile::ReadOnly));
    const QString manual = QString::fromUtf8(page.readAll()).remove(u'\\');
    static const QRegularExpression option(u"--[a-z]+"_s);
    for (const Command& command : Commands()) {
        const qsizetype at = manual.indexOf(u"\n.SS %1\n"_s.arg(command.name));
        ASSERT_GE(at, 0) << command.name.toStdString();
        const QString section = manual.mid(at, manual.indexOf(u"\n.S"_s, at + 1) - at);
        for (const QRegularExpressionMatch& match : option.globalMatch(command.help))
            EXPECT_TRUE(section.contains(match.captured())) << match.captured().toStdString();
    }
}

}  // namespace
}  // namespace akarix::admin
