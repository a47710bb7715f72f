#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "platform/dao/DBEngine.h"
#include "platform/dialect/Engine.h"
#include "platform/runtime/RuntimeError.h"
#include "support/PrintQString.h"

namespace akarix {

inline QString Connect(const QString& password = "secret1") {
    return "MS Access;PWD=" + password;
}

inline int ErrorOf(const std::function<void()>& step) {
    try {
        step();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

inline void MakeTable(Database& database, TableDef table) {
    database.engine().define({Definition::Kind::CreateTable, std::move(table)});
}

/// A folder of its own and files of the store in it; everything is closed at the end.
class StoreTest : public ::testing::Test {
 protected:
    void TearDown() override { DBEngine::Workspaces(0).Close(); }

    QString path(const QString& name = "Store.MDB") const { return folder_.filePath(name); }

    Database& create(const QString& name = "Store.MDB") {
        return *DBEngine::Workspaces(0).CreateDatabase(path(name), Connect());
    }
    Database& open(const QString& password = "secret1", const QString& name = "Store.MDB") {
        return *DBEngine::Workspaces(0).OpenDatabase(path(name), false, false, Connect(password));
    }

    static int count(Database& database, const QString& table) {
        Recordset rows = database.OpenRecordset("SELECT * FROM " + table);
        if (rows.Eof()) return 0;
        rows.MoveLast();
        return rows.RecordCount();
    }

    /// Not while a group of writes is open: the file's locks would be lost.
    static QByteArray bytesOf(const QString& file) {
        QFile source(file);
        return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
    }
    static void write(const QString& file, const QByteArray& bytes) {
        QFile target(file);
        ASSERT_TRUE(target.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(target.write(bytes), bytes.size());
    }

 private:
    QTemporaryDir folder_;
};

/// Goods: a key, a text, money, a flag that defaults to 0.
inline TableDef GoodsTable(const QString& name = "Goods") {
    return {name,
            {{"Code", FieldType::Long},
             {"Kana", FieldType::Text, 10},
             {"Tanka", FieldType::Currency},
             {"Rte", FieldType::Integer},
             {"Hizuke", FieldType::Date},
             {"Flg", FieldType::Integer, 0, true}},
            {{"Code"}}};
}

}  // namespace akarix
