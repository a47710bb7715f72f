#include "store/dbAccess.h"

#include "platform/dao/DBEngine.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "store/StoreClaim.h"

namespace akarix {

Workspace* gWs = nullptr;
Database* gDb = nullptr;

namespace {

constexpr int kUnrecognisedFormat = 3343;

/// Runs one statement of the migration. On a file that is up to date it fails, and that is all right.
void TryStatement(const QString& sql) {
    try {
        gDb->Execute(sql);
    } catch (const RuntimeError&) {
        return;
    }
}

}  // namespace

QString DatabaseName() {
    return u"Akarix.MDB"_s;
}

QString StorePassword() {
    return u"kvz#7164"_s;
}

QString ConnectText() {
    return u"MS Access;PWD="_s + StorePassword();
}

bool OpenDb(void (*fail)(const QString& text, const QString& title)) {
    // Another desk that opens the file is soon done.
    const StoreClaim claim(DatabaseName(), std::chrono::seconds(1));
    if (!claim.holder().isEmpty()) {
        fail(u"%1 は %2 が使っています。\r終わってから、もう一度起動してください。"_s.arg(DatabaseName(),
                                                                                          claim.holder()),
             u"エラー"_s);
        return false;
    }
    for (;;) {
        try {
            gWs = &DBEngine::Workspaces(0);
            gDb = gWs->OpenDatabase(DatabaseName(), false, false, ConnectText());
            return true;
        } catch (const RuntimeError& error) {
            if (error.number() != kUnrecognisedFormat) {
                fail(u"エラー番号 "_s + Str(error.number()) + error.source() +
                         u" でエラーが発生しました。 "_s + u'\r' + error.description(),
                     u"エラー"_s);
                return false;
            }
        }
        DBEngine::RepairDatabase(DatabaseName());
    }
}

void MigrateDb() {
    TryStatement(u"CREATE TABLE TempZan( Code Long , Zan Currency )"_s);
    TryStatement(u"ALTER Table Gaskeisan ALTER COLUMN Kihon Currency"_s);
    TryStatement(u"ALTER Table Gaskeisan ALTER COLUMN Tanka Currency"_s);
    TryStatement(u"ALTER Table Rte ADD COLUMN Kensin Integer"_s);
    TryStatement(u"ALTER Table Bnk ADD COLUMN Keiyaku Text(30)"_s);
    TryStatement(u"ALTER Table Bnk ADD COLUMN Jimusyo Text(30)"_s);
    TryStatement(u"ALTER Table Deal ALTER COLUMN Koza TEXT(10)"_s);
}

void CloseDb() {
    if (gWs != nullptr) gWs->Close();
    gWs = nullptr;
    gDb = nullptr;
}

}  // namespace akarix
