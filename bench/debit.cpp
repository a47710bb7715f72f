// The debit disk of the post office for 30,000 customers: writing the request, and reading the result back
// with a payment for each, against the same bytes and statements by hand.

#include <QApplication>

#include "BenchApplication.h"
#include "DealerFiles.h"
#include "Measure.h"
#include "PeerDebit.h"
#include "clerk/Clerk.h"
#include "debit/DebitQuery.h"
#include "debit/DebitReader.h"
#include "debit/PostDebitFile.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"

namespace akarix::bench {
namespace {

constexpr int kCustomers = 30000;
constexpr int kRuns = 5;
constexpr int kDay = 27;
const Date kDebited = DateSerial(kYear, kMonth, kDay);

/// Every customer owes something and pays through an account of his own.
void OpenAccounts(const QString& path) {
    PeerStore store(path);
    store.run("UPDATE Deal SET Bnk=9900,Stn=10010,Kind=1,Koza=CAST(10000000+Code AS TEXT),DiscGaku=0");
    store.run("UPDATE Deal SET DiscGaku=30000000 WHERE Code%3=0");
    store.run("UPDATE TtoD SET ZenkaiGaku=50000000,NGaku=0");
    store.run("DELETE FROM Bnk");
    store.run(
        "INSERT INTO Bnk(Code,ItakuCode,Itakusya,fName,BkName,Stn,KozaNo) "
        "VALUES(9900,'1','A','disk','POST',1,'1')");
}

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// Everything the reading back writes, row by row.
QStringList Written(const QString& path) {
    PeerStore store(path);
    QStringList rows;
    for (const char* sql : {"SELECT * FROM Dny ORDER BY Dno,Eda",
                            "SELECT * FROM TtoD ORDER BY Deal,Nendo,Getudo", "SELECT * FROM FDLog"}) {
        for (PeerStatement all(store, sql); all.next();) {
            QString row;
            for (int column = 0; column < all.columns(); ++column)
                row += all.text(column) + u'|';
            rows.append(row);
        }
    }
    return rows;
}

void ReadBack(Clerk& clerk) {
    clerk.answerConfirm(true);
    clerk.answerConfirm(true);
    clerk.answerAlert();
    const Action grouped;
    ReadPostResult([](const QString&) {});
}

int Run() {
    DealerFiles files(kCustomers, 1);
    CloseDb();
    OpenAccounts(files.path("made"));
    QDir().mkpath(u"Drive/A"_s);
    SetClock(kDebited);
    Clerk clerk;
    Race writing;
    Race reading;
    for (int i = 0; i < kRuns; ++i) {
        files.copy("product");
        files.open("product");
        const Consignor post = LoadPostConsignor();
        const Consignor fitted = FitPostConsignor(post);
        const RetransferDay never{u"  "_s, u"  "_s};
        writing.product.push_back(Measure([&] {
            WriteRequest(u"A:\\disk"_s, gDb->OpenRecordset(DebitQuery(kPostOffice, {kYear, kMonth})),
                         PostRequest(fitted, kDebited, never), [](const QString&) {});
        }));
        reading.product.push_back(Measure([&] { ReadBack(clerk); }));

        files.copy("peer");
        PeerStore store(files.path("peer"));
        PeerDebit peer(store);
        const QByteArray head = PostHeader(fitted, kDebited, never).toLatin1();
        writing.peer.push_back(
            Measure([&] { peer.write("peer", head, fitted.BkName.toLatin1(), kYear, kMonth); }));
        reading.peer.push_back(Measure([&] { peer.read("Drive/A/disk", kDebited, kYear, kMonth, kDay); }));
    }
    if (BytesOf(u"peer"_s) != BytesOf(u"Drive/A/disk"_s)) {
        std::fputs("the two files differ\n", stderr);
        return 1;
    }
    if (Written(files.path("product")) != Written(files.path("peer"))) {
        std::fputs("the two ledgers differ\n", stderr);
        return 1;
    }
    PrintHead();
    PrintRow("debit disk, 30,000 records written", writing, Times(3));
    PrintRow("debit disk, 30,000 records read back and posted", reading, Times(3));
    return 0;
}

}  // namespace
}  // namespace akarix::bench

int main(int argc, char** argv) {
    const akarix::bench::BenchApplication application(argc, argv);
    return akarix::bench::Run();
}
