#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include "platform/runtime/Progress.h"

namespace akarix {

/// Something that may take long, from its construction to its end. The cursor is busy, and what is typed or
/// clicked meanwhile is dropped instead of landing on the next screen. After a second a small window tells
/// what is done of how many; its 中止, or Esc, stops a stage that may be stopped at its next step.
class LongRun : public QObject, public Progress {
 public:
    /// Whether the session's end stops it as the operator may.
    enum class AtSessionEnd { Stops, GoesOn };

    explicit LongRun(const QString& what, AtSessionEnd atSessionEnd = AtSessionEnd::Stops);
    ~LongRun() override;

    void stage(const QString& what, bool mayStop) override;
    void step(int done, int total) override;
    /// Whether a step has raised.
    bool stopped() const { return stopped_; }

    /// While one lives a dialog stands in the midst of the run under way: keys and clicks are for the dialog,
    /// and the second starts anew behind it.
    class Pause {
     public:
        Pause();
        ~Pause();
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

     private:
        QPointer<LongRun> run_;
    };

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    class Window;

    void show(int done, int total);
    void breathe();
    bool isOwn(const QObject* watched) const;
    void setBusy(bool busy);

    static LongRun*& current();

    LongRun* outer_;
    QString what_;
    QString stage_;
    bool endsWithSession_;
    bool mayStop_ = true;
    bool stopWanted_ = false;
    bool stopped_ = false;
    bool paused_ = false;
    QElapsedTimer sinceStart_;
    QElapsedTimer sinceBreath_;
    QPointer<Window> window_;  ///< goes with its owner
};

}  // namespace akarix
