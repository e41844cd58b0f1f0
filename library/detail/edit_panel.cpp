#include "edit_panel.h"

#include "browser/pick_lists.h"
#include "imaging/CoverArtView.h"
#include "platform/line_wrapping.h"
#include "platform/localisation.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <limits>

namespace velmora {

namespace {

/** So long after the last key the files get what was typed: there may be 100,000 of them. */
constexpr std::chrono::milliseconds typingPause{250};

struct FieldDescription {
    LibraryColumn column;
    const char* name;
    const char* caption;
    const char* tip;
};

constexpr std::array<FieldDescription, 7> fieldDescriptions = {{
    {LibraryColumn::title, "entry_titles", QT_TRANSLATE_NOOP("Velmora", "&Title:"),
     QT_TRANSLATE_NOOP("Velmora", "The title of the selected files")},
    {LibraryColumn::artist, "entry_artists", QT_TRANSLATE_NOOP("Velmora", "&Artist or cast:"),
     QT_TRANSLATE_NOOP("Velmora", "The artist of the selected songs, the cast of the selected films")},
    {LibraryColumn::album, "entry_albums", QT_TRANSLATE_NOOP("Velmora", "Al&bum or director:"),
     QT_TRANSLATE_NOOP("Velmora", "The album of the selected songs, the director of the selected films")},
    {LibraryColumn::year, "entry_years", QT_TRANSLATE_NOOP("Velmora", "&Year:"),
     QT_TRANSLATE_NOOP("Velmora", "The year of release, of up to four digits")},
    {LibraryColumn::genre, "combo_genres", QT_TRANSLATE_NOOP("Velmora", "&Genre:"),
     QT_TRANSLATE_NOOP("Velmora", "The genre: choose one or type your own")},
    {LibraryColumn::rating, "combo_ratings", QT_TRANSLATE_NOOP("Velmora", "Rat&ing:"),
     QT_TRANSLATE_NOOP("Velmora", "The parental rating of the selected films")},
    {LibraryColumn::synopsis, "entry_synopses", QT_TRANSLATE_NOOP("Velmora", "Sy&nopsis or comment:"),
     QT_TRANSLATE_NOOP("Velmora", "What the selected films are about, or a comment on the songs")},
}};

QComboBox* comboOf(const QStringList& suggestions) {
    auto* const box = new QComboBox;
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
    box->addItems(suggestions);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return box;
}

/** What FIELD says, blanks that do not break included. */
QString textIn(const QPlainTextEdit& field) {
    QString text = field.document()->toRawText();
    return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

/** TEXT with the line breaks that such a field knows. */
QString withPlainBreaks(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

QWidget* widgetOf(LibraryColumn column) {
    if (column == LibraryColumn::genre) {
        return comboOf(localisedGenres());
    }
    if (column == LibraryColumn::rating) {
        return comboOf(ratingTitles());
    }
    if (column == LibraryColumn::synopsis) {
        auto* const text = new QPlainTextEdit;
        text->setTabChangesFocus(true);
        text->setMinimumHeight(60);
        return text;
    }
    auto* const line = new QLineEdit;
    line->setMaxLength(std::numeric_limits<int>::max()); // or a long text would be cut off
    return line;
}

} // namespace

EditPanel::EditPanel(LibraryModel& model, QWidget* parent) : QWidget(parent), model_(model) {
    setObjectName(QStringLiteral("box_editPanel"));
    thread_.setMaxThreadCount(1);
    typing_.setSingleShot(true);
    typing_.setInterval(typingPause);
    connect(&typing_, &QTimer::timeout, this, &EditPanel::flush);
    auto* const layout = new QFormLayout(this);
    layout->setRowWrapPolicy(QFormLayout::WrapAllRows);
    makeFields(*layout);
    makeCover(*layout);
    showFiles({});
}

EditPanel::~EditPanel() {
    thread_.clear();
    thread_.waitForDone();
}

void EditPanel::makeFields(QFormLayout& layout) {
    for (const FieldDescription& field : fieldDescriptions) {
        QWidget* const widget = widgetOf(field.column);
        widget->setObjectName(QLatin1String(field.name));
        widget->setToolTip(localised(field.tip));
        layout.addRow(localised(field.caption), widget);
        fields_.emplace(field.column, widget);
        const LibraryColumn column = field.column;
        if (auto* const line = qobject_cast<QLineEdit*>(widget)) {
            connect(line, &QLineEdit::textEdited, this, [this, column] { typedInto(column); });
            connect(line, &QLineEdit::editingFinished, this, &EditPanel::flush);
        } else if (auto* const box = qobject_cast<QComboBox*>(widget)) {
            connect(box, &QComboBox::editTextChanged, this, [this, column] { typedInto(column); });
            connect(box, &QComboBox::textActivated, this, [this, column] {
                typedInto(column);
                typed_.reset(); // also an empty text is chosen, and not what is left of typing
                edit(column, typedText(column));
            });
        } else if (auto* const text = qobject_cast<QPlainTextEdit*>(widget)) {
            connect(text, &QPlainTextEdit::textChanged, this, [this, column] { typedInto(column); });
        }
    }
}

QString EditPanel::typedText(LibraryColumn column) const {
    QWidget* const widget = fieldOf(column);
    if (const auto* const line = qobject_cast<QLineEdit*>(widget)) {
        return line->text();
    }
    if (const auto* const box = qobject_cast<QComboBox*>(widget)) {
        return box->currentText();
    }
    return textIn(*qobject_cast<QPlainTextEdit*>(widget));
}

void EditPanel::typedInto(LibraryColumn column) {
    if (showing_) {
        return;
    }
    if (typed_ && typed_ != column) {
        flush();
    }
    if (touched_ != column) {
        touched_ = column;
        untouched_.clear();
        for (const int file : files_) {
            if (const RowEdits* const edits = model_.rows().edits(file)) {
                untouched_.emplace(file, *edits);
            }
        }
    }
    typed_ = column;
    typing_.start();
}

/** Whether the user has undone, in the field itself, all that was typed into it. */
bool EditPanel::isAllUndone(LibraryColumn column) const {
    QWidget* const widget = fieldOf(column);
    if (const auto* const line = qobject_cast<QLineEdit*>(widget)) {
        return !line->isUndoAvailable();
    }
    if (const auto* const box = qobject_cast<QComboBox*>(widget)) {
        return !box->lineEdit()->isUndoAvailable() && box->currentText().isEmpty();
    }
    return !qobject_cast<QPlainTextEdit*>(widget)->document()->isUndoAvailable();
}

void EditPanel::flush() {
    typing_.stop();
    if (const std::optional<LibraryColumn> column = std::exchange(typed_, std::nullopt)) {
        if (touched_ == column && isAllUndone(*column)) {
            takeBack(*column);
        } else {
            edit(*column, typedText(*column));
        }
    }
}

/** The files' COLUMN is what it was before it was typed into, be it several values. */
void EditPanel::takeBack(LibraryColumn column) {
    std::vector<std::pair<int, RowEdits>> all;
    for (const int file : files_) {
        const RowEdits* const now = model_.rows().edits(file);
        const auto before = untouched_.find(file);
        RowEdits edits = now ? *now : RowEdits();
        copyEdit(edits, before == untouched_.end() ? RowEdits() : before->second, model_.rows().at(file),
                 column);
        all.emplace_back(file, std::move(edits));
    }
    model_.setEdits(all);
}

void EditPanel::forgetTyping() {
    flush();
    refills_ = true;
    refresh();
}

void EditPanel::edit(LibraryColumn column, const QString& text) {
    std::vector<std::pair<int, RowEdits>> all;
    for (const int file : files_) {
        const RowEdits* const before = model_.rows().edits(file);
        RowEdits edits = before ? *before : RowEdits();
        if (editText(edits, model_.rows().at(file), column, text)) {
            all.emplace_back(file, std::move(edits));
        }
    }
    model_.setEdits(all);
}

void EditPanel::showFiles(const std::vector<int>& files) {
    flush();
    // What was typed for other files is not to be undone in these.
    refills_ = refills_ || files != files_;
    files_ = files;
    refresh();
}

void EditPanel::refresh() {
    const QScopedValueRollback<bool> showing(showing_, true);
    for (const FieldDescription& field : fieldDescriptions) {
        if (typed_ != field.column) {
            show(field.column);
        }
    }
    if (std::exchange(refills_, false)) {
        touched_.reset();
        untouched_.clear();
    }
    showCover();
}

void EditPanel::show(LibraryColumn column) {
    const LibraryRows& rows = model_.rows();
    std::optional<QString> common;
    bool several = false;
    bool any = false;
    for (const int file : files_) {
        if (!isEditable(column, rows.at(file).media)) {
            continue;
        }
        any = true;
        QString text = rows.text(file, column);
        several = common && *common != text;
        if (several) {
            break;
        }
        common = std::move(text);
    }
    fieldOf(column)->setEnabled(any);
    showText(column, several ? QString() : common.value_or(QString()), several);
}

/** A field that says TEXT already keeps its cursor and what can be undone in it, unless it is filled anew. */
void EditPanel::showText(LibraryColumn column, const QString& text, bool several) {
    const QString placeholder = several ? localised("several values") : QString();
    QWidget* const widget = fieldOf(column);
    auto* line = qobject_cast<QLineEdit*>(widget);
    if (auto* const box = qobject_cast<QComboBox*>(widget)) {
        line = box->lineEdit();
    }
    if (line) {
        line->setPlaceholderText(placeholder);
        if (refills_ || line->text() != text) {
            line->setText(text);
            line->setCursorPosition(0);
        }
        return;
    }
    auto* const field = qobject_cast<QPlainTextEdit*>(widget);
    field->setPlaceholderText(placeholder);
    if (const QString plain = withPlainBreaks(text); refills_ || textIn(*field) != plain) {
        setWrappedText(*field, plain);
    }
}

} // namespace velmora
