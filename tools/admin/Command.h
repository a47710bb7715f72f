#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>
#include <optional>
#include <span>
#include <utility>

namespace akarix::admin {

enum ExitCode { Done = 0, Failed = 1, WrongUse = 2 };
/// Of the commands that look for faults.
enum Finding { Clean = 0, Found = 1, Unreadable = 2 };

/// Ends a command with an exit code and a line on the error stream.
struct Stop {
    int code;
    QString reason;
};
/// Ends a command whose arguments mean nothing, with the word where its use is explained.
struct Misuse {};

/// One command of akarix-admin.
struct Command {
    QString name;
    QString summary;  ///< one line of the overview
    const char* help;
    QList<QCommandLineOption> options;
    std::pair<int, int> names;  ///< how many arguments it takes beside the options, at least and at most
    int (*run)(const QCommandLineParser& given);
    int errorCode = Failed;  ///< of a run that ends with an error of the run time
};

// Each in the file of its name.
Command CreateCommand();
Command SampleCommand();
Command CheckCommand();
Command RestoreCommand();
Command ZipCommand();
Command DebitCommand();
Command TemplateCommand();
std::span<const Command> Commands();

/// Runs the command that the arguments name (without the program's own name) and gives the exit code.
int Run(const QStringList& arguments);

/// A number of the command line within its bounds.
std::optional<int> ReadCount(const QString& text, int most);

}  // namespace akarix::admin
