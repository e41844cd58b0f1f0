#include "guide_window.h"

#include "platform/accessibility.h"
#include "platform/localisation.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>

namespace velmora {
namespace {

const char* const guideFolders[] = {"../share/velmora/guide", "../guide", "../../guide"};
constexpr int pageWidth = 760; ///< of a picture, in logical pixels: a line of text is not much longer

/** A page whose pictures are as wide as its text, and sharp on every screen. */
class GuidePage : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override {
        if (type != QTextDocument::ImageResource) {
            return QTextBrowser::loadResource(type, name);
        }
        QImageReader reader(source().resolved(name).toLocalFile());
        const QSize size = reader.size();
        const qreal ratio = devicePixelRatioF();
        const int width = qRound(pageWidth * ratio);
        if (size.width() > width) {
            reader.setScaledSize(size.scaled(width, size.height(), Qt::KeepAspectRatio));
        }
        QImage image = reader.read();
        image.setDevicePixelRatio(ratio);
        return image;
    }
};

/** What a link to HEADING has behind its "#". */
QString anchorOf(const QString& heading) {
    QString anchor;
    for (const QChar letter : heading.toLower()) {
        if (letter == u' ' || letter == u'-') {
            anchor += u'-';
        } else if (letter.isLetterOrNumber()) {
            anchor += letter;
        }
    }
    return anchor;
}

} // namespace

QString guideFile(const QString& programFolder) {
    for (const char* const folder : guideFolders) {
        const QFileInfo file(
            QDir(programFolder + QLatin1Char('/') + QLatin1String(folder)).filePath("user-guide.md"));
        if (file.isFile()) {
            return QDir::cleanPath(file.absoluteFilePath());
        }
    }
    return {};
}

GuideWindow::GuideWindow(const QString& file, QWidget* parent)
    : QMainWindow(parent), page_(new GuidePage(this)) {
    setObjectName(QStringLiteral("window_guide"));
    setWindowTitle(localised("User Guide"));
    page_->setObjectName(QStringLiteral("text_guide"));
    page_->setAccessibleName(localised("User Guide"));
    page_->setToolTip(localised("The guide's text"));
    page_->setOpenLinks(false);
    page_->document()->setDocumentMargin(16);
    connect(page_, &QTextBrowser::anchorClicked, this, &GuideWindow::open);
    setCentralWidget(page_);
    makeBar();
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, words_,
            qOverload<>(&QWidget::setFocus));
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this, &GuideWindow::findNext);
    resize(860, 640);
    open(QUrl::fromLocalFile(file));
    page_->setFocus();
}

void GuideWindow::makeBar() {
    auto* const bar = addToolBar(localised("User Guide"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    headings_ = new QComboBox;
    headings_->setToolTip(localised("Go to a heading of the guide"));
    headings_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(headings_, &QComboBox::activated, this,
            [this](int index) { goToBlock(headings_->itemData(index).toInt()); });
    words_ = new QLineEdit;
    words_->setToolTip(localised("Find words in the guide; Return goes to the next place"));
    words_->setClearButtonEnabled(true);
    connect(words_, &QLineEdit::returnPressed, this, &GuideWindow::findNext);
    notFound_ = new QLabel;
    for (const auto& [caption, field] : {std::pair(localised("&Go to:"), static_cast<QWidget*>(headings_)),
                                         std::pair(localised("&Find:"), static_cast<QWidget*>(words_))}) {
        auto* const label = new QLabel(caption);
        label->setMargin(4);
        label->setBuddy(field);
        bar->addWidget(label);
        bar->addWidget(field);
    }
    bar->addWidget(notFound_);
    nameControlsByCaptions(*this);
}

/** Files of the guide alone are opened; a link that leads elsewhere does nothing. */
void GuideWindow::open(const QUrl& address) {
    const QUrl target = page_->source().resolved(address);
    QUrl file = target;
    file.setFragment(QString());
    if (!file.isLocalFile() || !QFileInfo(file.toLocalFile()).isFile()) {
        if (page_->source().isEmpty()) {
            page_->setPlainText(localised("The user guide is not installed."));
        }
        return;
    }
    if (file != page_->source()) {
        page_->setSource(file);
        listHeadings();
    }
    for (int index = 0; index < headings_->count(); ++index) {
        if (!target.fragment().isEmpty() && anchorOf(headings_->itemText(index)) == target.fragment()) {
            goToBlock(headings_->itemData(index).toInt());
        }
    }
}

void GuideWindow::listHeadings() {
    headings_->clear();
    for (QTextBlock block = page_->document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0) {
            headings_->addItem(block.text(), block.blockNumber());
        }
    }
}

void GuideWindow::goToBlock(int block) {
    page_->moveCursor(QTextCursor::End); // so that the heading comes to the top
    page_->setTextCursor(QTextCursor(page_->document()->findBlockByNumber(block)));
    page_->verticalScrollBar()->setValue(page_->verticalScrollBar()->value() + page_->cursorRect().top());
    page_->setFocus();
}

void GuideWindow::findNext() {
    if (words_->text().isEmpty()) {
        return;
    }
    const QTextCursor before = page_->textCursor();
    bool found = page_->find(words_->text());
    if (!found) { // once round
        page_->moveCursor(QTextCursor::Start);
        found = page_->find(words_->text());
    }
    if (!found) {
        page_->setTextCursor(before);
    }
    notFound_->setText(found ? QString() : localised("Not found"));
}

} // namespace velmora
