#include <QFileInfo>
#include <algorithm>
#include <limits>

#include "admin/Command.h"
#include "admin/TemplateCheck.h"
#include "admin/Terminal.h"
#include "platform/runtime/Literals.h"
#include "platform/sheet/SheetReader.h"

namespace akarix::admin {

namespace {

const char* const kHelpText =
    "使い方: akarix-admin template ファイル...\n\n"
    "帳票の雛形（Prt の中のブック）を調べます。中身は変えません。\n"
    "  1. シート「Sheet1」があるか。\n"
    "  2. 帳票が書くセルが、すべて印刷されるか: 印刷の範囲の外、隠れた行や列、結合に隠れたもの、\n"
    "     狭すぎるものを並べます。\n"
    "  3. 印刷されないもの、印刷で変わるもの（図、数式、条件付き書式など）を並べます。\n\n"
    "どの帳票のものかは、ファイルの名前の始まりで見分けます（請求書.xlsx、請求書 控え.xlsx）。\n"
    "終了コード: 0 異常なし、1 見つかったものがある、2 読めない（または使い方の誤り）\n";

Finding CheckTemplate(const QString& path) {
    const QStringList names = ReportNames();
    const auto report = std::find_if(
        names.begin(), names.end(),
        [file = QFileInfo(path).fileName()](const QString& name) { return file.startsWith(name); });
    if (report == names.end()) {
        TellError(u"%1: どの帳票の雛形か分かりません。名前は %2 のどれかで始まります。\n"_s.arg(
            path, names.join(u'、')));
        return Unreadable;
    }
    QStringList faults;
    try {
        faults = TemplateFaults(ReadSheet(path, u"Sheet1"_s), *report);
    } catch (const MissingSheet& error) {
        faults += error.description();
    } catch (const RuntimeError& error) {
        TellError(u"%1: エラー %2: %3\n"_s.arg(path).arg(error.number()).arg(error.description()));
        return Unreadable;
    }
    Tell(path + u": "_s + (faults.isEmpty() ? u"正常\n"_s : u"\n"_s));
    for (const QString& fault : faults)
        Tell(u"  - %1\n"_s.arg(fault));
    return faults.isEmpty() ? Clean : Found;
}

int CheckTemplates(const QCommandLineParser& given) {
    int worst = Clean;
    for (const QString& path : given.positionalArguments())
        worst = std::max<int>(worst, CheckTemplate(path));
    return worst;
}

}  // namespace

Command TemplateCommand() {
    constexpr int any = std::numeric_limits<int>::max();
    return {u"template"_s, u"帳票の雛形を調べる"_s, kHelpText, {}, {1, any}, CheckTemplates};
}

}  // namespace akarix::admin
