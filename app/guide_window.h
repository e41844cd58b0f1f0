#pragma once

#include <QMainWindow>

class QComboBox;
class QLabel;
class QLineEdit;
class QTextBrowser;

namespace velmora {

/** The user guide's file, absolute, seen from PROGRAM_FOLDER: where an installation puts it, or where a build
   leaves it for the program and for its tests. Empty when it is in none of these places. */
[[nodiscard]] QString guideFile(const QString& programFolder);

/** The user guide in a window of its own, with its pictures: read from files alone, without a browser or a
   network. Links lead to the pages beside it, a box to its headings, a field to words in it; Escape closes
   the window. */
class GuideWindow : public QMainWindow {
    Q_OBJECT
public:
    /** FILE is a Markdown file; when it is empty or can't be read, the window says so. */
    explicit GuideWindow(const QString& file, QWidget* parent = nullptr);

private:
    void makeBar();
    void open(const QUrl& address);
    void listHeadings();
    void goToBlock(int block);
    void findNext();

    QTextBrowser* page_ = nullptr;
    QComboBox* headings_ = nullptr;
    QLineEdit* words_ = nullptr;
    QLabel* notFound_ = nullptr;
};

} // namespace velmora
