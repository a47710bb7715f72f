#pragma once

#include <QString>
#include <QStringList>
#include <span>

namespace akarix::admin {

enum ExitCode { Done = 0, Failed = 1, WrongUse = 2 };

/// One command of akarix-admin.
struct Command {
    QString name;
    QString summary;  ///< one line of the overview
    QString help;
    /// \param arguments what stands behind the command's name.
    int (*run)(const QStringList& arguments);
};

std::span<const Command> Commands();

/// Runs the command that the arguments name (without the program's own name) and gives the exit code.
int Run(const QStringList& arguments);

}  // namespace akarix::admin
