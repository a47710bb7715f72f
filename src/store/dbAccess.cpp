#include "store/dbAccess.h"

#include "platform/jet/DBEngine.h"
#include "platform/runtime/RuntimeError.h"
#include "platform/runtime/Str.h"
#include "store/StoreClaim.h"

namespace akarix {

Workspace* gWs = nullptr;
Database* gDb = nullptr;

namespace {

constexpr int unrecognisedFormat = 3343;

/// Runs one statement of the migration. On a file that is up to date it fails, and that is all right.
void tryStatement(const QString& sql) {
    try {
        gDb->Execute(sql);
    } catch (const RuntimeError&) {
        return;
    }
}

}  // namespace

QString DatabaseName() {
    return QStringLiteral("Akarix.MDB");
}

QString StorePassword() {
    return QStringLiteral("kvz#7164");
}

QString ConnectText() {
    return QStringLiteral("MS Access;PWD=") + StorePassword();
}

bool OpenDb(void (*fail)(const QString& text, const QString& title)) {
    // Another desk that opens the file is soon done.
    const StoreClaim claim(DatabaseName(), std::chrono::seconds(1));
    if (!claim.holder().isEmpty()) {
        fail(QStringLiteral("%1 は %2 が使っています。\r終わってから、もう一度起動してください。")
                 .arg(DatabaseName(), claim.holder()),
             QStringLiteral("エラー"));
        return false;
    }
    for (;;) {
        try {
            gWs = &DBEngine::Workspaces(0);
            gDb = gWs->OpenDatabase(DatabaseName(), false, false, ConnectText());
            return true;
        } catch (const RuntimeError& error) {
            if (error.number() != unrecognisedFormat) {
                fail(QStringLiteral("エラー番号 ") + Str(error.number()) + error.source() +
                         QStringLiteral(" でエラーが発生しました。 ") + u'\r' + error.description(),
                     QStringLiteral("エラー"));
                return false;
            }
        }
        DBEngine::RepairDatabase(DatabaseName());
    }
}

void MigrateDb() {
    tryStatement(QStringLiteral("CREATE TABLE TempZan( Code Long , Zan Currency )"));
    tryStatement(QStringLiteral("ALTER Table Gaskeisan ALTER COLUMN Kihon Currency"));
    tryStatement(QStringLiteral("ALTER Table Gaskeisan ALTER COLUMN Tanka Currency"));
    tryStatement(QStringLiteral("ALTER Table Rte ADD COLUMN Kensin Integer"));
    tryStatement(QStringLiteral("ALTER Table Bnk ADD COLUMN Keiyaku Text(30)"));
    tryStatement(QStringLiteral("ALTER Table Bnk ADD COLUMN Jimusyo Text(30)"));
    tryStatement(QStringLiteral("ALTER Table Deal ALTER COLUMN Koza TEXT(10)"));
}

void CloseDb() {
    if (gWs != nullptr) gWs->Close();
    gWs = nullptr;
    gDb = nullptr;
}

}  // namespace akarix
