#include "platform/dao/Workspace.h"

#include <QFileInfo>
#include <exception>

#include "platform/dao/Engines.h"
#include "platform/dao/Session.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Files.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

// "MS Access;PWD=secret;" -> "secret"
QString PasswordOf(const QString& connect) {
    const QString mark = u"PWD="_s;
    for (const QString& part : connect.split(u';'))
        if (part.trimmed().startsWith(mark, Qt::CaseInsensitive)) return part.mid(part.indexOf(u'=') + 1);
    return {};
}

}  // namespace

Database* Workspace::OpenDatabase(const QString& name, bool exclusive, bool readOnly,
                                  const QString& connect) {
    try {
        return keep(name, OpenEngine(LocalPath(name), PasswordOf(connect), exclusive, readOnly));
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.number(), error.description(), u"DAO.Workspace"_s);
    }
}

Database* Workspace::CreateDatabase(const QString& name, const QString& connect) {
    const QString path = LocalPath(name);
    if (QFileInfo::exists(path)) throw StoreError(3204, name, u"DAO.Workspace"_s);
    return keep(name, CreateEngine(path, PasswordOf(connect)));
}

void Workspace::Close() {
    std::exception_ptr first;
    for (const std::unique_ptr<Database>& database : databases_) {
        try {
            if (database->session_->isOpen()) database->Close();
        } catch (...) {
            if (!first) first = std::current_exception();
        }
    }
    if (first) std::rethrow_exception(first);
}

Database* Workspace::keep(const QString& name, std::unique_ptr<Engine> engine) {
    databases_.push_back(
        std::unique_ptr<Database>(new Database(name, std::make_shared<Session>(std::move(engine)))));
    return databases_.back().get();
}

}  // namespace akarix
