#include "portable_save_run.h"

#include "platform/localisation.h"
#include "platform/modal_loop.h"

#include <QDialog>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QThreadPool>
#include <QTimer>
#include <QVBoxLayout>

namespace velmora {

namespace {

constexpr int momentInMilliseconds = 100;
constexpr int tickInMilliseconds = 50;
constexpr int steps = 1000;

/** What the save says of itself, on its thread. */
struct Progress {
    std::atomic<quint64> done = 0;
    std::atomic<quint64> total = 0;

    [[nodiscard]] int step() const {
        const quint64 all = total;
        return all == 0 ? 0 : static_cast<int>(static_cast<double>(done) / static_cast<double>(all) * steps);
    }
};

/** The sheet. It stays until the save has ended, whatever is pressed. */
class SaveSheet : public QDialog {
public:
    SaveSheet(const QString& name, QWidget* window, std::function<void()> cancel)
        : QDialog(window), cancel_(std::move(cancel)) {
        setWindowModality(Qt::WindowModal);
        setWindowTitle(localised("Save"));
        label_->setText(localised("Saving \"%@\"…", name));
        label_->setTextFormat(Qt::PlainText);
        bar_->setRange(0, steps);
        bar_->setAccessibleName(localised("Progress"));
        bar_->setMinimumWidth(320);
        button_->setText(localised("Cancel"));
        button_->setToolTip(localised("Leave the file as it was"));
        connect(button_, &QPushButton::clicked, this, &SaveSheet::reject);
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(label_);
        layout->addWidget(bar_);
        layout->addWidget(button_, 0, Qt::AlignRight);
    }

    void showStep(int step) { bar_->setValue(step); }

    void reject() override {
        button_->setEnabled(false);
        cancel_();
    }

private:
    std::function<void()> cancel_;
    QLabel* const label_ = new QLabel(this);
    QProgressBar* const bar_ = new QProgressBar(this);
    QPushButton* const button_ = new QPushButton(this);
};

/** Shows PROGRESS until THREAD is idle. */
void waitWithSheet(SaveSheet& sheet, const Progress& progress, QThreadPool& thread) {
    QEventLoop loop;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        sheet.showStep(progress.step());
        if (thread.waitForDone(0)) {
            loop.quit();
        }
    });
    timer.start(tickInMilliseconds);
    sheet.show();
    const ModalLoop modalLoop;
    while (!thread.waitForDone(0)) {
        loop.exec(); // may be ended by others
    }
}

} // namespace

PortableSaveResult PortableSaveRun::run(const PortableSave& save, const QString& name, QWidget* window) {
    const QScopedValueRollback<bool> running(running_, true);
    cancelled_ = false;
    Progress progress;
    PortableSaveResult result;
    QThreadPool thread;
    thread.setMaxThreadCount(1);
    thread.start([&] {
        result = save([&](quint64 done, quint64 total) {
            progress.total = total;
            progress.done = done;
            return !cancelled_;
        });
    });
    if (!thread.waitForDone(momentInMilliseconds)) {
        SaveSheet sheet(name, window, [this] { cancel(); });
        waitWithSheet(sheet, progress, thread);
    }
    return result;
}

} // namespace velmora
