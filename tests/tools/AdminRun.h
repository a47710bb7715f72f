#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>

#include "admin/Command.h"
#include "platform/runtime/Literals.h"

namespace akarix::admin {

struct Outcome {
    int code = 0;
    std::string said;  ///< on both streams
};

/// Runs akarix-admin with arguments parted by blanks.
inline Outcome RunAdmin(const QString& arguments) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int code = Run(arguments.split(u' ', Qt::SkipEmptyParts));
    const std::string out = testing::internal::GetCapturedStdout();
    return {code, out + testing::internal::GetCapturedStderr()};
}

inline QByteArray ContentsOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

inline void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

/// Changes one byte of a page of a store file, counted from 1.
inline void BreakPage(const QString& path, int page) {
    QByteArray bytes = ContentsOf(path);
    bytes[(page - 1) * 4096 + 1000] = static_cast<char>(~bytes[(page - 1) * 4096 + 1000]);
    WriteFile(path, bytes);
}

/// Another process that has a file open while it lives.
class Holder {
 public:
    explicit Holder(const QString& path) {
        process_.setStandardInputFile(path);
        process_.start(u"sleep"_s, {u"60"_s});
        EXPECT_TRUE(process_.waitForStarted());
    }
    ~Holder() {
        process_.kill();
        process_.waitForFinished();
    }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

 private:
    QProcess process_;
};

}  // namespace akarix::admin
