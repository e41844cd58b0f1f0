#include "window_fixture.h"

#include "browser/notice_bar.h"
#include "support/bytes.h"

#include <QApplication>
#include <QDir>
#include <QInputMethodEvent>
#include <QLabel>
#include <QTableView>
#include <QTest>

#include <algorithm>

namespace velmora::test {

std::string taggedFile(const std::string& frames) {
    return pattern(64) + appended_tag(frames);
}

std::string fileTaggedInFront() {
    return "ID3" + hex("03 00 00 00 00 00 0C") + "TIT2" + hex("00 00 00 02 00 00 00 5A") + pattern(64);
}

QuestionAnswerer::QuestionAnswerer(QWidget& window, QString button)
    : window_(window), button_(std::move(button)) {
    timer_.setInterval(5);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.start();
}

void QuestionAnswerer::look() {
    for (auto* box : window_.findChildren<QMessageBox*>()) {
        if (!box->isVisible()) {
            continue;
        }
        ++questions_;
        messageText_ = box->text();
        informativeText_ = box->informativeText();
        for (auto* candidate : box->findChildren<QPushButton*>()) {
            if (candidate->text() == button_) {
                candidate->click();
                return;
            }
        }
        box->done(77);
        return;
    }
}

WindowTest::WindowTest() {
    qputenv("HOME", QByteArray::fromStdString(folder_ / "home"));
    QDir().mkpath(QString::fromStdString(folder_ / "home"));
    document_ = std::make_unique<MyDocument>(termination_);
    document_->makeWindow();
    document_->showWindow();
    EXPECT_TRUE(waitUntil([this] { return !controller().search().isSearchRunning(); }));
}

WindowTest::~WindowTest() {
    document_.reset();
    settle();
    // A test may have told the application to end; an event loop of its own takes that back for the next one.
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
}

QString WindowTest::addFile(const std::string& name, const std::string& bytes) {
    write_file(folder_ / name, bytes);
    EXPECT_TRUE(controller().addMediaFile(path(name)));
    settle();
    return path(name);
}

void WindowTest::select(int row) {
    auto& table = widget<QTableView>("tbl_mediaFiles");
    row < 0 ? table.clearSelection() : table.selectRow(row);
    settle();
}

QString WindowTest::openFile(const std::string& name, const std::string& frames) {
    const QString added = addFile(name, taggedFile(frames));
    select(controller().table().model().numberOfRowsInTableView() - 1);
    EXPECT_NE(nullptr, document().mediaFile());
    return added;
}

void WindowTest::press(const char* name) {
    button(name).click();
    settle();
}

NoticeBar& WindowTest::bar() {
    return widget<NoticeBar>("bar_notice");
}

QString WindowTest::notice() {
    return bar().holdsNotice() ? bar().findChild<QLabel*>("lbl_notice")->text() : QString();
}

void WindowTest::type(const char* name, const QString& text) {
    auto& field = entry(name);
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    const bool onKeyboard = std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
    if (onKeyboard) {
        QTest::keyClicks(&field, text);
        return;
    }
    QInputMethodEvent event; // other scripts come from an input method
    event.setCommitString(text);
    QCoreApplication::sendEvent(&field, &event);
}

int WindowTest::logged(const std::string& text) {
    const std::string all = log_.text();
    int count = 0;
    for (std::size_t at = all.find(text); at != std::string::npos; at = all.find(text, at + text.size())) {
        ++count;
    }
    return count;
}

} // namespace velmora::test
