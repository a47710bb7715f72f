#include "admin/Command.h"

#include "admin/Check.h"
#include "admin/Create.h"
#include "admin/Debit.h"
#include "admin/Restore.h"
#include "admin/Sample.h"
#include "admin/Template.h"
#include "admin/Terminal.h"
#include "admin/Zip.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix::admin {

namespace {

QString overview() {
    QString text = QStringLiteral(
        "akarix-admin - データベースの作成と手入れ\n\n"
        "使い方: akarix-admin コマンド [引数]\n\n");
    for (const Command& command : Commands()) {
        text += QStringLiteral("  %1 %2\n").arg(command.name.leftJustified(8), command.summary);
    }
    return text + QStringLiteral(
                      "\nコマンドの説明: akarix-admin コマンド --help\n"
                      "終了コード: 0 正常、1 失敗、2 使い方の誤り。check、debit、template は 1 "
                      "見つかったものがある、2 読めない\n");
}

const Command* findCommand(const QString& name) {
    for (const Command& command : Commands()) {
        if (command.name == name) return &command;
    }
    return nullptr;
}

bool asksForHelp(const QStringList& arguments) {
    return arguments.contains(QStringLiteral("--help")) || arguments.contains(QStringLiteral("-h"));
}

}  // namespace

std::span<const Command> Commands() {
    static const Command commands[] = {createCommand(), sampleCommand(), checkCommand(),   restoreCommand(),
                                       zipCommand(),    debitCommand(),  templateCommand()};
    return commands;
}

int Run(const QStringList& arguments) {
    if (arguments.isEmpty()) {
        tellError(overview());
        return WrongUse;
    }
    const Command* command = findCommand(arguments.first());
    if (command == nullptr) {
        if (asksForHelp(arguments.first(1))) {
            tell(overview());
            return Done;
        }
        tellError(QStringLiteral("知らないコマンドです: %1\n\n").arg(arguments.first()) + overview());
        return WrongUse;
    }
    if (asksForHelp(arguments)) {
        tell(command->help);
        return Done;
    }
    try {
        return command->run(arguments.mid(1));
    } catch (const RuntimeError& error) {
        tellError(QStringLiteral("エラー %1: %2\n").arg(error.number()).arg(error.description()));
        return Failed;
    }
}

}  // namespace akarix::admin
