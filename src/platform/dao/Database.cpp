#include "platform/dao/Database.h"

#include "platform/dao/Session.h"
#include "platform/runtime/Literals.h"

namespace akarix {

Database::Database(const QString& name, std::shared_ptr<Session> session)
    : name_(name), session_(std::move(session)) {}

void Database::Execute(const QString& sql) {
    const BoundText text = session_->translate(sql);
    if (text.statement->query()) throw StoreError(3065, QString(), u"DAO.Database"_s);
    if (const auto* definition = std::get_if<Definition>(&text.statement->body))
        session_->engine().define(*definition);
    else
        session_->engine().change(text);
}

Recordset Database::OpenRecordset(const QString& sql) {
    BoundText text = session_->translate(sql);
    if (!text.statement->query()) throw StoreError(3219, QString(), u"DAO.Database"_s);
    return {session_, std::move(text)};
}

void Database::Close() {
    session_->close();
}

Engine& Database::engine() {
    return session_->engine();
}

}  // namespace akarix
