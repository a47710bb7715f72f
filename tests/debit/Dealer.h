#pragma once

#include <xlsxwriter.h>

#include <QFile>

#include "platform/runtime/Calendar.h"
#include "platform/runtime/Files.h"
#include "store/Settings.h"
#include "support/ListScreen.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {

/// A dealer with a bank, 123, and the post office as consignors, and a floppy in the drive. No file number is
/// open before and after.
class DebitTest : public ScreenTest {
 protected:
    void SetUp() override {
        SetClock(DateSerial(2023, 4, 15));
        gPrintPreview = false;
        QDir().mkpath("Drive/A");
        ScratchStore::run(
            "INSERT INTO Bnk(Code,ItakuCode,Itakusya,fName,BkName,Stn,StnName,Syurui,KozaNo) "
            "VALUES(123,'1234567','ｱｶﾘｸｽｶﾞｽ(ｶ','FURIKAE','ｷﾀｷﾞﾝｺｳ',5,'ﾎﾝﾃﾝ','1','98765');\n"
            "INSERT INTO Bnk(Code,ItakuCode,Itakusya,fName,BkName,Stn,KozaNo,Keiyaku,Jimusyo) VALUES(9900,"
            "'1234567','ｱｶﾘｸｽｶﾞｽ(ｶ','jiharai','ﾕｳｾｲｼﾖｳﾁﾖｷﾝｷﾖｸ',1,'98765','自払','南事務センター');\n");
    }
    void TearDown() override {
        Close(1);
        ScreenTest::TearDown();
    }

    /// Code, Kana, Haisou, Bnk, Stn, Kind, Koza, DiscGaku; the balance of April 2023.
    static void customer(const QString& master, const QString& balance) {
        gDb->Execute("INSERT INTO Deal(Code,Kana,Haisou,Bnk,Stn,Kind,Koza,DiscGaku) VALUES(" + master + ")");
        gDb->Execute("INSERT INTO TtoD(Deal,Nendo,Getudo,Gaku) VALUES(" + master.section(',', 0, 0) +
                     ",2023,4," + balance + ")");
    }
    static void writeFile(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    }
    static QByteArray readFile(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::ReadOnly)) << path.toStdString();
        return file.readAll();
    }
    /// The number of an error that was told by its number, or the words.
    static QString errorIn(const QString& said) {
        return said.startsWith("エラー") ? said.section('\n', 0, 0).mid(3) : said;
    }
    static void expectTexts(const QString& page, const QStringList& texts) {
        for (const QString& text : texts)
            EXPECT_TRUE(page.contains(text)) << text.toStdString() << " in " << page.toStdString();
    }

    ScratchStore store;
    QStringList progress;
    std::function<void(const QString&)> shown = [this](const QString& text) { progress += text; };
};

}  // namespace akarix
