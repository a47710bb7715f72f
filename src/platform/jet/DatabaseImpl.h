#pragma once

#include "platform/jet/Database.h"
#include "platform/jet/Session.h"

namespace akarix {

struct Database::Impl {
    QString name;
    std::shared_ptr<Session> session;
    std::int64_t affected = 0;
};

}  // namespace akarix
