#pragma once

#include <QApplication>

#include "platform/forms/Form.h"
#include "platform/forms/Style.h"

namespace akarix::bench {

/// The application of a program that measures screens or paper: with the program's look, and without a
/// display where nobody names one.
class BenchApplication {
 public:
    BenchApplication(int& argc, char** argv) : application_(argc, argv) { ApplyStyle(application_); }
    ~BenchApplication() { Form::DropInstances(); }
    BenchApplication(const BenchApplication&) = delete;
    BenchApplication& operator=(const BenchApplication&) = delete;

 private:
    struct Platform {
        Platform() {
            if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        }
    };
    Platform platform_;  // before the application, which reads it
    QApplication application_;
};

}  // namespace akarix::bench
