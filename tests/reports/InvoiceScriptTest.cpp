#include "reports/InvoiceScript.h"

#include <QFileInfo>

#include "output/PB.h"
#include "platform/print/PdfText.h"
#include "platform/print/Printer.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/RuntimeError.h"
#include "store/Settings.h"
#include "support/CaseFile.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class InvoiceScript : public testing::Test {
 protected:
    void SetUp() override {
        gPrintPreview = false;
        Printer::Current().UsePdf(store.path("out.pdf"));
        ScratchStore::run(
            "INSERT INTO Deal(Code,Namae,Addr1,Addr2) VALUES(7,'山田, 太郎','北町1-2','3号室');\n"
            "INSERT INTO Deal(Code,Namae,NoSeikyu) VALUES(8,'鈴木',1);\n"
            "INSERT INTO Deal(Code) VALUES(9)");
    }
    void TearDown() override { Printer::Current().UseQueue({}); }

    /// "invoice 7" draws a customer's, "undated" one without a date of issue; "account 5000" or "account 5000
    /// 100 150.5 112" the account alone behind a balance carried and a reading; anything else is a statement.
    static QStringList play(const QStringList& steps) {
        ScratchStore::run("DELETE FROM Dgd;\nDELETE FROM Dud;\nDELETE FROM TtoD");
        PBInit();
        QStringList found;
        for (const QString& step : steps) {
            const QStringList words = step.split(' ');
            if (words[0] == "account") {
                InvoiceReading reading;
                reading.zenkaiMeter = amount(words.value(2));
                reading.koukanMeter = amount(words.value(3));
                if (words.size() > 4) reading.konkaiMeter = amount(words[4]);
                AddInvoiceAccount({7, 2024, 3}, reading, amount(words[1]));
            } else if (words[0] == "invoice" || words[0] == "undated") {
                found += draw(words[1].toInt(), words[0] == "undated" ? Date() : DateSerial(2024, 4, 5));
            } else {
                gDb->Execute(step);
            }
        }
        const QStringList lines(PB().ScriptLines.begin(), PB().ScriptLines.end());
        return lines.isEmpty() && found.isEmpty() ? QStringList("nothing") : lines + found;
    }
    /// The error that ends the drawing.
    static QStringList draw(int deal, Date issued) {
        try {
            DrawInvoice({deal, 2024, 3}, issued);
            return {};
        } catch (const RuntimeError& error) {
            return {QString("error %1").arg(error.number())};
        }
    }
    static Currency amount(const QString& text) {
        return text.isEmpty() ? Currency() : Currency::FromText(text);
    }

    ScratchStore store;
};

TEST_F(InvoiceScript, WhatIsDrawn) {
    QStringList heads;
    QStringList circles;
    for (const auto& [place, fresh, given, expected] : ReadScripts(AKARIX_TEST_DATA "/drawn.invoices")) {
        QStringList lines = play(given);
        if (heads.isEmpty()) heads = lines.mid(0, 8);
        if (given == QStringList("account 0")) circles = lines;
        QString wanted = expected.join('\n');
        wanted.replace("HEAD", heads.join('\n')).replace("CIRCLES", circles.join('\n'));
        EXPECT_EQ(lines.join('\n').toStdString(), wanted.toStdString()) << place;
    }
}

TEST_F(InvoiceScript, EndsAtTheBalanceWithNothingPrinted) {
    EXPECT_EQ(play({"invoice 7"}).last(), "error 3420");
    EXPECT_FALSE(QFileInfo::exists("out.pdf"));
    play({"account 0"});
    PBRun();
    EXPECT_EQ(PdfPages("out.pdf").value(0).count("○"), 8) << "the engine takes the script";
}

}  // namespace
}  // namespace akarix
