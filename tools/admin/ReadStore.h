#pragma once

#include <QString>

namespace akarix {
class Database;
}

namespace akarix::admin {

/// A dealer's file open for reading as long as it lives.
class ReadStore {
 public:
    explicit ReadStore(const QString& path);
    ~ReadStore();
    ReadStore(const ReadStore&) = delete;
    ReadStore& operator=(const ReadStore&) = delete;

    Database& db() const { return *db_; }

 private:
    Database* db_;
};

}  // namespace akarix::admin
