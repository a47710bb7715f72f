#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/runtime/Files.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Raises.h"
#include "support/PrintQString.h"

namespace akarix {

namespace {

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

void Put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

class Files : public testing::Test {
 protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        QDir::setCurrent(folder_.path());
        QDir().mkpath(u"Drive/A"_s);
    }
    void TearDown() override {
        for (const int number : {1, 2, 7})
            Close(number);
        QDir::setCurrent(before_);
    }

 private:
    QTemporaryDir folder_;
    QString before_ = QDir::currentPath();
};

TEST_F(Files, WritesAndReadsItems) {
    Open(u"A:\\req.txt"_s, OpenMode::Output, 1);
    Print(1, u"1"_s, false);
    Print(1, u"ﾔﾏﾀﾞ髙"_s);
    Print(1, u"  d:\\bk,rest"_s);
    Close(1);
    EXPECT_EQ(BytesOf(u"Drive/A/req.txt"_s), QByteArray("1\xd4\xcf\xc0\xde\xfb\xfc\r\n  d:\\bk,rest\r\n"));

    Open(u"a:req.txt"_s, OpenMode::Append, 2);
    Print(2, u"\"x, y\" z,last"_s, false);
    Close(2);
    Open(u"A:\\req.txt"_s, OpenMode::Input, 1);
    for (const QString& item : {u"1ﾔﾏﾀﾞ髙"_s, u"d:\\bk"_s, u"rest"_s, u"x, y"_s, u"last"_s})
        EXPECT_EQ(Input(1), item);
    EXPECT_EQ(Raised([] { return Input(1); }), 62);
}

TEST_F(Files, LinesEndInAnyCustomAndTheEndMarkEndsTheFile) {
    Put(u"in"_s, QByteArray("a\r\rc\n\n  d \r\n\x1a") + "e");
    Open(u"in"_s, OpenMode::Input, FreeFile());
    EXPECT_EQ(FreeFile(), 2);
    for (const QString& line : {u"a"_s, u""_s, u"c"_s, u""_s, u"d "_s})
        EXPECT_EQ(Input(1), line);
    EXPECT_EQ(Raised([] { return Input(1); }), 62);
}

TEST_F(Files, OpenRaisesTheClassicNumbers) {
    Put(u"there"_s, "x");
    const std::tuple<QString, OpenMode, int, int> cases[] = {
        {u"none"_s, OpenMode::Input, 1, 53},       {u"Prt\\none"_s, OpenMode::Input, 1, 76},
        {u"B:\\f"_s, OpenMode::Input, 1, 71},      {u"B:\\x\\f"_s, OpenMode::Output, 1, 71},
        {u"A:\\x\\f"_s, OpenMode::Output, 1, 76},  {u"A:\\"_s, OpenMode::Output, 1, 75},
        {u""_s, OpenMode::Input, 1, 75},           {u"there"_s, OpenMode::Input, 0, 52},
        {u"there"_s, OpenMode::Input, 512, 52},    {u"there"_s, OpenMode::Input, 7, 55},
        {u".\\THERE2"_s, OpenMode::Output, 1, 55},
    };
    Open(u"THERE2"_s, OpenMode::Output, 7);
    for (const auto& [path, mode, number, error] : cases)
        EXPECT_EQ(
            Raised([&, path = path, mode = mode, number = number] { return Open(path, mode, number), 0; }),
            error);
    EXPECT_EQ(Raised([] { return Input(7); }), 54);
    EXPECT_EQ(Raised([] { return Input(3); }), 52);
    Open(u"there"_s, OpenMode::Input, 1);
    Open(u"there"_s, OpenMode::Input, 2);
    EXPECT_EQ(Raised([] { return Print(1, u"x"_s), 0; }), 54);
    EXPECT_EQ(Raised([] { return Print(3, u"x"_s), 0; }), 52);
    EXPECT_EQ(Raised([] { return Close(99), 0; }), 0);
}

#ifdef Q_OS_LINUX
TEST_F(Files, AFullDiskIsNoticedAtTheLatestAtClose) {
    QFile::link(u"/dev/full"_s, u"Drive/A/full"_s);
    Open(u"A:\\full"_s, OpenMode::Output, 1);
    Print(1, u"short"_s);
    EXPECT_EQ(Raised([] { return Close(1), 0; }), 61);
    EXPECT_EQ(FreeFile(), 1);
    Open(u"A:\\full"_s, OpenMode::Output, 1);
    EXPECT_EQ(Raised([] { return Print(1, QString(100000, u'x')), 0; }), 61);
}
#endif

TEST_F(Files, DirKnowsNamesWhateverTheirCase) {
    Put(u"BKPath"_s, "");
    Put(u"Drive/A/b[1].TXT"_s, "");
    Put(u"Drive/A/a.dat"_s, "");
    QDir().mkdir(u"sub.txt"_s);
    EXPECT_EQ(Dir(u"bkpath"_s), u"BKPath"_s);
    EXPECT_EQ(Dir(u"A:B[1].t?t"_s), u"b[1].TXT"_s);
    EXPECT_EQ(Dir(u"A:\\"_s), u"a.dat"_s);
    EXPECT_EQ(Dir(u"*.txt"_s), QString());
    EXPECT_EQ(Dir(u"A:\\none\\*"_s), QString());
    EXPECT_EQ(Raised([] { return Dir(u"B:\\*"_s); }), 71);
}

TEST_F(Files, Folders) {
    MkDir(u"A:\\bk\\"_s);
    EXPECT_TRUE(QDir(u"Drive/A/bk"_s).exists());
    EXPECT_EQ(Raised([] { return MkDir(u"A:\\bk"_s), 0; }), 75);
    EXPECT_EQ(Raised([] { return MkDir(u"A:\\x\\y"_s), 0; }), 76);
    EXPECT_EQ(Raised([] { return MkDir(u"B:\\x"_s), 0; }), 71);
}

TEST(Path, DrivesHangBelowTheCurrentFolder) {
    EXPECT_EQ(LocalPath(u"c:\\Backup\\x"_s), u"Drive/C/Backup/x"_s);
    EXPECT_EQ(LocalPath(u"Prt\\請求書"_s), u"Prt/請求書"_s);
}

}  // namespace

}  // namespace akarix
