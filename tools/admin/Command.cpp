#include "admin/Command.h"

#include "admin/Terminal.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix::admin {

namespace {

QString Overview() {
    QString text =
        u"akarix-admin - データベースの作成と手入れ\n\n"
        "使い方: akarix-admin コマンド [引数]\n\n"_s;
    for (const Command& command : Commands())
        text += u"  %1 %2\n"_s.arg(command.name.leftJustified(8), command.summary);
    return text +
           u"\nコマンドの説明: akarix-admin コマンド --help\n"
           "終了コード: 0 正常、1 失敗、2 使い方の誤り。check、debit、template は 1 "
           "見つかったものがある、2 読めない\n"_s;
}

const Command* FindCommand(const QString& name) {
    for (const Command& command : Commands())
        if (command.name == name) return &command;
    return nullptr;
}

bool AsksForHelp(const QStringList& arguments) {
    return arguments.contains(u"--help"_s) || arguments.contains(u"-h"_s);
}

int Run(const Command& command, const QStringList& arguments) {
    QCommandLineParser parser;
    parser.addOptions(command.options);
    try {
        const bool understood = parser.parse(QStringList(QString()) + arguments);
        const auto names = parser.positionalArguments().size();
        if (!understood || names < command.names.first || names > command.names.second) throw Misuse();
        return command.run(parser);
    } catch (const Misuse&) {
        TellError(u"引数が正しくありません。使い方: akarix-admin %1 --help\n"_s.arg(command.name));
        return WrongUse;
    } catch (const Stop& stop) {
        TellError(stop.reason + u'\n');
        return stop.code;
    } catch (const RuntimeError& error) {
        TellError(u"エラー %1: %2\n"_s.arg(error.number()).arg(error.description()));
        return command.errorCode;
    }
}

}  // namespace

std::span<const Command> Commands() {
    static const Command commands[] = {CreateCommand(), SampleCommand(), CheckCommand(),   RestoreCommand(),
                                       ZipCommand(),    DebitCommand(),  TemplateCommand()};
    return commands;
}

int Run(const QStringList& arguments) {
    if (arguments.isEmpty()) {
        TellError(Overview());
        return WrongUse;
    }
    const Command* command = FindCommand(arguments.first());
    if (command == nullptr) {
        if (AsksForHelp(arguments.first(1))) {
            Tell(Overview());
            return Done;
        }
        TellError(u"知らないコマンドです: %1\n\n"_s.arg(arguments.first()) + Overview());
        return WrongUse;
    }
    if (AsksForHelp(arguments)) {
        Tell(QString::fromUtf8(command->help));
        return Done;
    }
    return Run(*command, arguments.mid(1));
}

std::optional<int> ReadCount(const QString& text, int most) {
    bool isNumber = false;
    const int count = text.toInt(&isNumber);
    return isNumber && count >= 1 && count <= most ? std::optional(count) : std::nullopt;
}

}  // namespace akarix::admin
