#pragma once

#include "apply_run.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QThreadPool>
#include <QTimer>
#include <QTreeWidget>

#include <atomic>

namespace velmora {

/** Runs work over many files beside the main thread: shows how far it is, how fast it goes and how long it
   takes, and what became of it at the end, with the files that failed and a button that tries these again. */
class ApplyDialog : public QDialog {
    Q_OBJECT
public:
    /** What is done, on another thread. */
    using Work = std::function<std::vector<ApplyResult>(const ApplyProgress& progress)>;

    explicit ApplyDialog(const QString& title, QWidget* window);
    /** Cancels what runs, and waits for it. */
    ~ApplyDialog() override;

    void start(Work work);
    [[nodiscard]] bool isRunning() const { return running_; }
    /** What runs is to end soon; each file is old or new. */
    void cancel() { cancelled_ = true; }

signals:
    /** The work has ended; the dialog says how. */
    void ended(const std::vector<velmora::ApplyResult>& results);
    /** The user wants what failed to be tried again. */
    void tryAgain();

protected:
    /** Cancels what runs; else closes. */
    void reject() override;

private:
    void makeLayout();
    void showProgress();
    void finish(const std::vector<ApplyResult>& results);
    void list(const std::vector<ApplyResult>& results);

    QLabel* const text_ = new QLabel(this);
    QProgressBar* const bar_ = new QProgressBar(this);
    QTreeWidget* const failures_ = new QTreeWidget(this);
    QPushButton* const again_ = new QPushButton(this);
    QPushButton* const close_ = new QPushButton(this);
    QTimer timer_;
    QElapsedTimer clock_;
    QThreadPool thread_;
    std::atomic<std::size_t> done_ = 0;
    std::atomic<std::size_t> total_ = 0;
    std::atomic<bool> cancelled_ = false;
    bool running_ = false;
};

} // namespace velmora
