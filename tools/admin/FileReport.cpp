#include "admin/FileReport.h"

#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "store/dbAccess.h"

namespace akarix::admin {

namespace {

QString NumbersOf(const std::vector<int>& pages) {
    constexpr std::size_t mostNamed = 8;
    QStringList names;
    for (std::size_t i = 0; i < pages.size() && i < mostNamed; ++i)
        names += QString::number(pages[i]);
    if (pages.size() > mostNamed) names += u"…"_s;
    return names.join(u',');
}

QString FaultsOf(const FileCheck& check) {
    QStringList faults;
    if (!check.badPages.empty()) {
        faults += u"%1 ページ中 %2 ページが壊れています（%3）"_s.arg(check.pages)
                      .arg(check.badPages.size())
                      .arg(NumbersOf(check.badPages));
    }
    if (check.cutShort) faults += u"終わりが切れています"_s;
    if (!check.opens && check.badPages.empty()) faults += u"ページのつながりが壊れています"_s;
    if (!check.disorder.isEmpty()) faults += u"表と索引が合いません（%1 か所）"_s.arg(check.disorder.size());
    return faults.join(u"、"_s);
}

}  // namespace

FileState StateOf(const QString& path) {
    FileState state;
    try {
        state.check = CheckStoreFile(path, StorePassword());
        state.faults = FaultsOf(state.check);
    } catch (const RuntimeError& error) {
        state.faults = error.number() == 3343 ? u"Akarix のデータベースではないか、すべて壊れています"_s
                                              : error.description();
    }
    return state;
}

}  // namespace akarix::admin
