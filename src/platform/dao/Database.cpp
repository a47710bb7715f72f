#include "platform/dao/Database.h"

#include "platform/dao/DatabaseImpl.h"
#include "platform/dao/RecordsetImpl.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Literals.h"

namespace akarix {

Database::Database(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}

Database::~Database() = default;

void Database::Execute(const QString& sql) {
    Session& session = *impl_->session;
    const BoundStatement statement = session.translate(sql);
    impl_->affected = 0;
    switch (statement.plan->kind) {
        case Plan::Kind::Rows:
            throw StoreError(3065, QString(), u"DAO.Database"_s);
        case Plan::Kind::Change:
            impl_->affected = session.engine().change(statement);
            return;
        case Plan::Kind::Definition:
            session.engine().define(statement);
            return;
    }
}

Recordset Database::OpenRecordset(const QString& sql) {
    BoundStatement statement = impl_->session->translate(sql);
    if (statement.plan->kind != Plan::Kind::Rows) throw StoreError(3219, QString(), u"DAO.Database"_s);
    return Recordset(std::make_unique<Recordset::Impl>(impl_->session, std::move(statement)));
}

std::int64_t Database::RecordsAffected() const {
    impl_->session->engine();  // raises once closed
    return impl_->affected;
}

void Database::Close() {
    impl_->session->close();
}

const QString& Database::Name() const {
    return impl_->name;
}

Engine& Database::engine() {
    return impl_->session->engine();
}

}  // namespace akarix
