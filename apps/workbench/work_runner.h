#pragma once

#include <QObject>
#include <QTimer>
#include <deque>
#include <memory>

#include "workbench/step_work.h"

namespace workbench {

/// Does long work in between the user's actions: some steps, then whatever waits, and on.
class WorkRunner : public QObject {
    Q_OBJECT
public:
    explicit WorkRunner(QObject* parent = nullptr);

    /// Begins the work; what is under way waits until it is done.
    void Begin(std::shared_ptr<StepWork> work);
    bool Busy() const { return !waiting_.empty(); }
    /// The work goes on no more.
    void Drop(const std::shared_ptr<StepWork>& work);
    /// Does all work now.
    void Finish();

public slots:
    /// Ends the work that is under way.
    void Cancel();

signals:
    void Progress(const QString& title, int done, int total);
    /// There is nothing to do any more.
    void Idle();
    /// A step failed, which ended the work.
    void Failed(const QString& message);

private:
    void Continue();
    bool StepOnce();
    void EndCurrent();

    QTimer timer_;
    std::deque<std::shared_ptr<StepWork>> waiting_;  ///< the first is under way
    bool stepping_ = false;
};

}  // namespace workbench
