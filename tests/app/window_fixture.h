#pragma once

#include "app/MyDocument.h"
#include "browser/VelmoraController.h"
#include "browser/media_table.h"
#include "browser/tag_form.h"
#include "support/id3_tags.h"
#include "support/qt_printing.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/waiting.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace velmora::test {

/** Media bytes with an ID3v2.4 tag of FRAMES behind them: a file that can be saved. */
[[nodiscard]] std::string taggedFile(const std::string& frames);
/** Media bytes behind an ID3v2.3 tag with the title "Z": a small file that can't be saved. */
[[nodiscard]] std::string fileTaggedInFront();

/** Answers each question that comes up on WINDOW by pressing the button with a given text, or, with no text,
   by taking the question away without a button. Without an answerer a question would wait for ever. */
class QuestionAnswerer {
public:
    QuestionAnswerer(QWidget& window, QString button);

    [[nodiscard]] int questions() const { return questions_; }
    [[nodiscard]] QString messageText() const { return messageText_; }
    [[nodiscard]] QString informativeText() const { return informativeText_; }

private:
    void look();

    QWidget& window_;
    QString button_;
    QTimer timer_;
    int questions_ = 0;
    QString messageText_;
    QString informativeText_;
};

/** The program's window, offscreen, over an empty home folder; its start-up search has ended. */
class WindowTest : public testing::Test {
protected:
    WindowTest();
    ~WindowTest() override;

    /** Writes a file into the scratch folder, lists it, and returns its path. */
    QString addFile(const std::string& name, const std::string& bytes);
    /** Selects a row as a click does, and lets the window act on it; -1 selects none. */
    void select(int row);
    /** A file with TITLE, listed and open. */
    QString openFile(const std::string& name = "a.mp3", const std::string& frames = text4("TIT2", "Z"));

    template <class Widget = QWidget>
    [[nodiscard]] Widget& widget(const char* name) {
        auto* found = document_->window()->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(nullptr, found) << name;
        return *found;
    }
    [[nodiscard]] QLineEdit& entry(const char* name) { return widget<QLineEdit>(name); }
    [[nodiscard]] QPushButton& button(const char* name) { return widget<QPushButton>(name); }
    [[nodiscard]] bool enabled(const char* name) { return widget<QWidget>(name).isEnabled(); }
    /** Clicks the button called NAME, and lets the window act on it. */
    void press(const char* name);
    /** The line above the form. */
    [[nodiscard]] NoticeBar& bar();
    /** What that line says; empty while it holds no notice. */
    [[nodiscard]] QString notice();
    /** Replaces a field's text by typing, one key after another. */
    void type(const char* name, const QString& text);

    [[nodiscard]] MyDocument& document() { return *document_; }
    [[nodiscard]] VelmoraController& controller() { return *document_->controller(); }
    [[nodiscard]] MediaFile& file() { return *document_->mediaFile(); }
    [[nodiscard]] QString path(const std::string& name) { return QString::fromStdString(folder_ / name); }
    /** How often TEXT stands in the log of this test. */
    [[nodiscard]] int logged(const std::string& text);
    [[nodiscard]] std::string log() { return log_.text(); }

    ScratchFolder folder_;
    StreamCapture log_;
    ApplicationTermination termination_;
    std::unique_ptr<MyDocument> document_;
};

} // namespace velmora::test
