#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <stdexcept>

#include "platform/dao/DBEngine.h"
#include "platform/runtime/Action.h"
#include "platform/runtime/Literals.h"
#include "sample/SampleDealer.h"
#include "store/CreateDatabase.h"
#include "store/dbAccess.h"

namespace akarix::bench {

constexpr int kYear = 2024;
constexpr int kMonth = 3;

/// A sample dealer made once, in a folder of its own that becomes the current one, and copied for each run.
class DealerFiles {
 public:
    DealerFiles(int customers, int months) {
        QDir::setCurrent(folder_.path());
        CreateDelivered(path("made"));
        open("made");
        sample::FillSampleDealer({customers, months, kYear, kMonth}, [](const QString&) {});
    }
    ~DealerFiles() {
        CloseDb();
        QDir::setCurrent(QDir::rootPath());
    }
    DealerFiles(const DealerFiles&) = delete;
    DealerFiles& operator=(const DealerFiles&) = delete;

    QString path(const QString& name) const { return folder_.filePath(name + u".MDB"_s); }
    QString path(const char* name) const { return path(QString::fromLatin1(name)); }

    /// Opens a file as the program's own store, in place of the one that is open.
    void open(const char* name) {
        CloseDb();
        gWs = &DBEngine::Workspaces(0);
        gDb = gWs->OpenDatabase(path(name), false, false, ConnectText());
    }
    /// A fresh copy of the dealer, who is closed for it.
    void copy(const char* name) {
        CloseDb();
        QFile::remove(path(name));
        if (!QFile::copy(path("made"), path(name))) throw std::runtime_error("no copy of the dealer");
    }

 private:
    QTemporaryDir folder_;
};

}  // namespace akarix::bench
