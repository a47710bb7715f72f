#include "admin/FileReport.h"

#include "platform/runtime/RuntimeError.h"
#include "store/dbAccess.h"

namespace akarix::admin {

namespace {

QString numbersOf(const std::vector<int>& pages) {
    constexpr std::size_t mostNamed = 8;
    QStringList names;
    for (std::size_t i = 0; i < pages.size() && i < mostNamed; ++i)
        names += QString::number(pages[i]);
    if (pages.size() > mostNamed) names += QStringLiteral("…");
    return names.join(u',');
}

}  // namespace

QString faultsOf(const FileCheck& check) {
    QStringList faults;
    if (!check.badPages.empty()) {
        faults += QStringLiteral("%1 ページ中 %2 ページが壊れています（%3）")
                      .arg(check.pages)
                      .arg(check.badPages.size())
                      .arg(numbersOf(check.badPages));
    }
    if (check.cutShort) faults += QStringLiteral("終わりが切れています");
    if (!check.opens && check.badPages.empty()) faults += QStringLiteral("ページのつながりが壊れています");
    if (!check.disorder.isEmpty()) {
        faults += QStringLiteral("表と索引が合いません（%1 か所）").arg(check.disorder.size());
    }
    return faults.join(QStringLiteral("、"));
}

FileState stateOf(const QString& path) {
    FileState state;
    try {
        state.check = CheckStoreFile(path, StorePassword());
        state.faults = faultsOf(state.check);
    } catch (const RuntimeError& error) {
        state.faults = error.number() == 3343
                           ? QStringLiteral("Akarix のデータベースではないか、すべて壊れています")
                           : error.description();
    }
    return state;
}

}  // namespace akarix::admin
