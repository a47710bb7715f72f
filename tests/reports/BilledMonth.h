#pragma once

#include "platform/print/PdfText.h"
#include "platform/runtime/Calendar.h"
#include "platform/sheet/SheetReader.h"
#include "store/Settings.h"
#include "support/ListScreen.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {

/// April 2023 as billed for three customers on two routes, on the 15th, with the delivered templates.
class BilledMonth : public ScreenTest {
 protected:
    void SetUp() override {
        SetClock(DateSerial(2023, 4, 15));
        gPrintPreview = false;
        QDir().mkdir("Prt");
        for (const char* name : {"請求一覧表", "請求書"}) {
            const QString file = QString("Prt/%1.xlsx").arg(name);
            QFile::copy(AKARIX_SOURCE_DIR "/" + file, file);
        }
        customer("1,'山田',2,10,0", "1,0,4827,0,4827,0", "1,100.5,112.8,12.3");
        customer("2,'鈴木',1,30,0", "2,12000,1800,2089,3889,5000", "2,1900,1905.5,5.5");
        customer("3,'佐藤',1,20,0", "3,-500,0,0,0,0");
        ScratchStore::run(
            "INSERT INTO TtoD(Nendo,Getudo,Deal,Gaku) VALUES(2023,3,1,999),(2023,4,777,999);\n"
            "INSERT INTO Rte(Code,Kana,Namae) VALUES(1,'ｷﾀ','北町')");
    }

    /// \param master Code,Namae,Rte,Haisou,NoSeikyu
    /// \param ledger Deal,ZenkaiGaku,GGaku,UGaku,Gaku,NGaku
    /// \param reading Deal,ZenkaiMeter,KonkaiMeter,Suu; empty for none
    static void customer(const QString& master, const QString& ledger, const QString& reading = {}) {
        gDb->Execute("INSERT INTO Deal(Code,Namae,Rte,Haisou,NoSeikyu) VALUES(" + master + ")");
        gDb->Execute("INSERT INTO TtoD(Nendo,Getudo,Deal,ZenkaiGaku,GGaku,UGaku,Gaku,NGaku) VALUES(2023,4," +
                     ledger + ")");
        if (reading.isEmpty()) return;
        gDb->Execute("INSERT INTO Dgd(Nendo,Getudo,Hi,Deal,ZenkaiMeter,KonkaiMeter,Suu) VALUES(2023,4,20," +
                     reading + ")");
    }
    QStringList shown(int first = 0, int last = -1) const {
        return GridRows(clerk.find<FlexGrid>("List"), first, last);
    }
    /// What stands beside the boxes, "a/b/c".
    QString beside(const QStringList& labels) const {
        QStringList texts;
        for (const QString& label : labels)
            texts += clerk.text(label);
        return texts.join(u'/').remove(u' ');
    }
    /// The pages that a print button leaves. \param complaint what it begins to say; empty for nothing
    QStringList print(const QString& button, const QString& complaint = {}) {
        QFile::remove("out.pdf");
        AnswerPrinter(clerk, store.path("out.pdf"));
        if (!complaint.isEmpty()) clerk.answerAlert();
        clerk.lastSaid();
        clerk.click(button);
        EXPECT_EQ(clerk.lastSaid().left(complaint.size()), complaint);
        clerk.settle();  // what a broken run has printed goes out when the screen waits again
        return QFile::exists("out.pdf") ? PdfPages("out.pdf") : QStringList();
    }
    Sheet exported(const QString& button) {
        AnswerSaveAs(clerk, store.path("a.xlsx"));
        clerk.click(button);
        return ReadSheet(store.path("a.xlsx"), "Sheet1");
    }

    ScratchStore store;
};

}  // namespace akarix
