#pragma once

#include "platform/dao/Database.h"
#include "platform/dao/Session.h"

namespace akarix {

struct Database::Impl {
    QString name;
    std::shared_ptr<Session> session;
    std::int64_t affected = 0;
};

}  // namespace akarix
