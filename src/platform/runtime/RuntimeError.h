#pragma once

#include <QString>
#include <exception>

namespace akarix {

/// The one exception of the run time: a classic error number and the text the operator reads.
class RuntimeError : public std::exception {
 public:
    explicit RuntimeError(int number);
    RuntimeError(int number, QString description);
    /// \param source the part of the run time that raised it, e.g. "DAO.Workspace"; may be empty.
    RuntimeError(int number, QString description, QString source);

    int number() const { return number_; }
    const QString& description() const { return description_; }
    const QString& source() const { return source_; }
    const char* what() const noexcept override { return what_.constData(); }

 private:
    int number_;
    QString description_;
    QString source_;
    QByteArray what_;
};

/// Number of the error by which an operator leaves a dialog, or something long, without its result.
constexpr int CancelledByOperator = 32755;

/// The run time's own text of a classic error number, in Japanese; a general text for an unknown number.
QString ErrorText(int number);

}  // namespace akarix
