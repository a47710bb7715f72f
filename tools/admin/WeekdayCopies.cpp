#include "admin/WeekdayCopies.h"

#include "platform/runtime/Input.h"
#include "platform/runtime/Open.h"
#include "platform/runtime/Path.h"

namespace akarix::admin {

namespace {

class InputFile {
 public:
    explicit InputFile(const QString& path) : number_(FreeFile()) { Open(path, OpenMode::Input, number_); }
    ~InputFile() { Close(number_); }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    QString item() const { return Input(number_); }

 private:
    int number_;
};

}  // namespace

QString weekdayName(int number) {
    static const QString names = QStringLiteral("日月火水木金土");
    return names.mid(number - 1, 1);
}

QString backupFolder() {
    return InputFile(QStringLiteral("BKPath")).item();
}

WeekdayCopy copyOf(const QString& folder, int number) {
    const QString part = folder.endsWith(u'\\') || folder.endsWith(u'/') ? QString() : QStringLiteral("\\");
    return {number, LocalPath(QStringLiteral("%1%2Akarix%3.MDB").arg(folder, part).arg(number))};
}

}  // namespace akarix::admin
