#include "apply_dialog.h"

#include "platform/localisation.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr std::chrono::milliseconds tick{100};
constexpr double millisecondsInSecond = 1000;

QString number(std::size_t count) {
    return QLocale().toString(static_cast<qulonglong>(count));
}

QString timeText(double seconds) {
    const auto whole = std::llround(seconds);
    return QStringLiteral("%1:%2").arg(whole / 60).arg(whole % 60, 2, 10, QLatin1Char('0'));
}

std::size_t countOf(const std::vector<ApplyResult>& results, ApplyEnd end) {
    return static_cast<std::size_t>(std::count_if(results.begin(), results.end(),
                                                  [end](const auto& result) { return result.end == end; }));
}

QString endText(const ApplyResult& result) {
    switch (result.end) {
    case ApplyEnd::changedSince:
        return localised("Changed since, left alone");
    case ApplyEnd::failed:
        return result.written || result.tagsDone
                   ? localised("The tags are right, the name is the old one: %@", result.reason)
                   : result.reason;
    default:
        return localised("Cancelled before its turn");
    }
}

/** TEXT for a tool tip, which would take some texts for rich ones. */
QString inPlainText(const QString& text) {
    return QStringLiteral("<span>") + text.toHtmlEscaped() + QStringLiteral("</span>");
}

QString summary(const std::vector<ApplyResult>& results) {
    QStringList lines;
    const auto add = [&](ApplyEnd end, const char* text, bool always) {
        if (const std::size_t count = countOf(results, end); count > 0 || always) {
            lines += localised(text, number(count));
        }
    };
    add(ApplyEnd::done, QT_TRANSLATE_NOOP("Velmora", "%@ done"), true);
    add(ApplyEnd::unchanged, QT_TRANSLATE_NOOP("Velmora", "%@ unchanged"), true);
    add(ApplyEnd::failed, QT_TRANSLATE_NOOP("Velmora", "%@ failed"), true);
    add(ApplyEnd::changedSince, QT_TRANSLATE_NOOP("Velmora", "%@ changed since and left alone"), false);
    add(ApplyEnd::notReached, QT_TRANSLATE_NOOP("Velmora", "%@ not reached"), false);
    return lines.join(QStringLiteral(" · "));
}

} // namespace

ApplyDialog::ApplyDialog(const QString& title, QWidget* window) : QDialog(window) {
    setObjectName(QStringLiteral("ApplyDialog"));
    setWindowModality(Qt::WindowModal);
    setWindowTitle(title);
    thread_.setMaxThreadCount(1);
    timer_.setInterval(tick);
    connect(&timer_, &QTimer::timeout, this, &ApplyDialog::showProgress);
    connect(again_, &QPushButton::clicked, this, &ApplyDialog::tryAgain);
    connect(close_, &QPushButton::clicked, this, &ApplyDialog::reject);
    makeLayout();
}

ApplyDialog::~ApplyDialog() {
    cancelled_ = true;
    thread_.waitForDone();
}

void ApplyDialog::makeLayout() {
    text_->setTextFormat(Qt::PlainText);
    text_->setObjectName(QStringLiteral("lbl_applied"));
    bar_->setAccessibleName(localised("Progress"));
    bar_->setMinimumWidth(480);
    failures_->setObjectName(QStringLiteral("list_failures"));
    failures_->setAccessibleName(localised("Files that were not changed"));
    failures_->setToolTip(localised("The files that were not changed, and why"));
    failures_->setHeaderLabels({localised("File"), localised("Reason")});
    failures_->setRootIsDecorated(false);
    failures_->setUniformRowHeights(true);
    failures_->setColumnWidth(0, 220);
    failures_->setMinimumWidth(640); // a reason is a sentence
    again_->setObjectName(QStringLiteral("btn_tryAgain"));
    again_->setText(localised("Try Again"));
    again_->setToolTip(localised("Try the files again that were not changed"));
    close_->setObjectName(QStringLiteral("btn_closeApply"));
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(again_);
    buttons->addWidget(close_);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(text_);
    layout->addWidget(bar_);
    layout->addWidget(failures_);
    layout->addLayout(buttons);
}

void ApplyDialog::start(Work work) {
    running_ = true;
    cancelled_ = false;
    done_ = 0;
    total_ = 0;
    failures_->hide();
    again_->hide();
    bar_->show();
    bar_->setRange(0, 0);
    text_->setText(localised("Writing…"));
    close_->setText(localised("Cancel"));
    close_->setToolTip(localised("Stop; each file is as it was or as it was to be"));
    clock_.start();
    timer_.start();
    thread_.start([this, work = std::move(work)] {
        std::vector<ApplyResult> results = work([this](std::size_t done, std::size_t total) {
            done_ = done;
            total_ = total;
            return !cancelled_;
        });
        QMetaObject::invokeMethod(
            this, [this, results = std::move(results)] { finish(results); }, Qt::QueuedConnection);
    });
    show();
}

void ApplyDialog::showProgress() {
    const std::size_t done = done_;
    const std::size_t total = total_;
    if (done == 0 || total == 0) {
        return;
    }
    const double rate = static_cast<double>(done) * millisecondsInSecond /
                        static_cast<double>(std::max<qint64>(clock_.elapsed(), 1));
    bar_->setRange(0, static_cast<int>(total));
    bar_->setValue(static_cast<int>(done));
    text_->setText(QStringList{localised("%@ files", number(done) + QStringLiteral(" / ") + number(total)),
                               localised("%@ a second", QLocale().toString(rate, 'f', rate < 10 ? 1 : 0)),
                               localised("%@ left", timeText(static_cast<double>(total - done) / rate))}
                       .join(QStringLiteral(" · ")));
}

void ApplyDialog::finish(const std::vector<ApplyResult>& results) {
    timer_.stop();
    running_ = false;
    bar_->hide();
    text_->setText(summary(results));
    list(results);
    close_->setText(localised("Close"));
    close_->setToolTip(localised("Close the summary"));
    close_->setDefault(true);
    close_->setFocus();
    emit ended(results);
}

void ApplyDialog::list(const std::vector<ApplyResult>& results) {
    failures_->clear();
    for (const ApplyResult& result : results) {
        if (result.end != ApplyEnd::done && result.end != ApplyEnd::unchanged) {
            auto* const item = new QTreeWidgetItem(failures_);
            item->setText(0, result.newPath.section(QLatin1Char('/'), -1));
            item->setToolTip(0, inPlainText(result.newPath));
            item->setText(1, endText(result));
            item->setToolTip(1, inPlainText(item->text(1)));
        }
    }
    const bool any = failures_->topLevelItemCount() > 0;
    failures_->setVisible(any);
    again_->setVisible(countOf(results, ApplyEnd::failed) + countOf(results, ApplyEnd::notReached) > 0);
    adjustSize();
}

void ApplyDialog::reject() {
    if (running_) {
        cancel();
        return;
    }
    QDialog::reject();
}

} // namespace velmora
