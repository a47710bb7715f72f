#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace akarix::month {

/// Pictures of the screens, numbered in the order of their taking.
class Album {
 public:
    explicit Album(const QString& folder) : folder_(folder) {}

    /// Windows as they stand on the desk, the last on top, each with its title.
    void take(const QString& name, const QList<QWidget*>& windows);

 private:
    QString folder_;
    int count_ = 0;
};

}  // namespace akarix::month
