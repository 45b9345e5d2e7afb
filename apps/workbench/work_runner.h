#pragma once

#include <QObject>
#include <QTimer>
#include <deque>
#include <memory>

#include "frame/kvdbkvn/db_info.h"
#include "workbench/step_work.h"

namespace workbench {

/// Does long work in between the user's actions: some steps, then whatever waits, and on. While
/// another login is in force than when it was begun, which a dialog may bring about, work waits.
class WorkRunner : public QObject {
    Q_OBJECT
public:
    explicit WorkRunner(QObject* parent = nullptr);

    /// Begins the work; what is under way waits until it is done.
    void Begin(std::shared_ptr<StepWork> work);
    bool Busy() const { return !waiting_.empty(); }
    /// The first work that writes something; null for none.
    const StepWork* Writing() const;
    /// The work goes on no more.
    void Drop(const std::shared_ptr<StepWork>& work);
    /// No work goes on any more. What writes something is told, as by `Cancel`.
    void DropAll();
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
    struct Job {
        std::shared_ptr<StepWork> work;
        CKvDbInfo login;
    };

    void Continue();
    enum class Waits { kPerson, kNobody };
    bool StepOnce(Waits waits);
    void Remove(const std::shared_ptr<StepWork>& work);
    void EndCurrent();

    QTimer timer_;
    std::deque<Job> waiting_;  ///< the first is under way
    bool stepping_ = false;
};

}  // namespace workbench
