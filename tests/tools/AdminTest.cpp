#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "platform/runtime/Literals.h"
#include "tools/AdminRun.h"

namespace akarix::admin {
namespace {

TEST(Admin, RefusesWhatItDoesNotUnderstand) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"a.mdb"_s);
    const struct {
        const char* arguments;
        int code;
    } cases[] = {
        {"", WrongUse},
        {"make", WrongUse},
        {"sample --help", Done},
        {"sample FILE --customers 32001", WrongUse},
        {"sample FILE --until 2011/13", WrongUse},
        {"sample FILE --colour red", WrongUse},
        {"create FILE other", WrongUse},
        {"create FOLDER", Failed},
        {"create FOLDER/none/a.mdb", Failed},
    };
    for (const auto& [arguments, code] : cases) {
        const QString named = QString(arguments).replace(u"FILE"_s, file).replace(u"FOLDER"_s, folder.path());
        EXPECT_EQ(RunAdmin(named).code, code) << arguments;
    }
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(Admin, TouchesAnExistingFileOnDemandAlone) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.mdb"_s);
    WriteFile(path, "mine");
    EXPECT_EQ(admin::Run({u"create"_s, path}), Failed);
    EXPECT_EQ(QFile(path).size(), 4);
    EXPECT_EQ(admin::Run({u"create"_s, path, u"--force"_s}), Done);
    EXPECT_GT(QFile(path).size(), 4096);
    EXPECT_EQ(RunAdmin(u"sample %1 --customers 5 --months 1 --force"_s.arg(path)).code, Done);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"a.mdb"_s});
}

TEST(Admin, EveryCommandIsInTheManualWithItsOptions) {
    const QString page = QStringLiteral(AKARIX_SOURCE_DIR "/docs/man/akarix-admin.1");
    const QString manual = QString::fromUtf8(ContentsOf(page)).remove(u'\\');
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
