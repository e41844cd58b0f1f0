#include "names_dialog.h"

#include "platform/accessibility.h"
#include "platform/alt_letters.h"
#include "platform/localisation.h"
#include "platform/sentences.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QVBoxLayout>

#include <array>

namespace velmora {

namespace {

using Use = NamePattern::Use;

/** So many rows are made at once; more are made beside the main thread. */
constexpr std::size_t fewRows = 300;
constexpr qsizetype longestHistory = 20;
constexpr int rowsMeasured = 100;

constexpr std::array places = {"title", "artist", "album", "director", "genre", "year", "rating", "synopsis"};

QStringList usualPatterns(Use use) {
    return use == Use::read ? QStringList{"%artist% - %title%", "%skip% - %title%",
                                          "%artist%/%album%/%title%", "%title% (%year%)"}
                            : QStringList{"%artist% - %title%", "%title%", "%artist% - %album% - %title%",
                                          "%title% (%year%)"};
}

std::vector<NamesPreviewRow> previewOf(Use use, const std::vector<NamesSource>& sources,
                                       const std::vector<FileRename>& others, const NamePattern& pattern) {
    return use == Use::read ? previewTagsFromNames(sources, pattern)
                            : previewNamesFromTags(sources, pattern, others);
}

QString number(int count) {
    return QLocale().toString(count);
}

} // namespace

NamesDialog::NamesDialog(Use use, std::vector<NamesSource> sources, std::vector<FileRename> others,
                         QStringList& history, QWidget* parent)
    : QDialog(parent), use_(use),
      sources_(std::make_shared<const std::vector<NamesSource>>(std::move(sources))),
      others_(std::make_shared<const std::vector<FileRename>>(std::move(others))), history_(history) {
    setObjectName(QStringLiteral("NamesDialog"));
    setWindowTitle(use == Use::read ? localised("Tags from Names") : localised("Names from Tags"));
    setLayout(new QVBoxLayout);
    makePatternLine();
    makePreview();
    makeButtons();
    keepAltLettersFromTyping(*this);
    thread_.setMaxThreadCount(1);
    resize(860, 520);
    connect(patternBox_, &QComboBox::editTextChanged, this, &NamesDialog::readPattern);
    readPattern();
    patternBox_->lineEdit()->selectAll();
}

NamesDialog::~NamesDialog() {
    thread_.clear();
    thread_.waitForDone();
}

void NamesDialog::makePatternLine() {
    auto* const line = new QHBoxLayout;
    auto* const caption = new QLabel(localised("&Pattern:"), this);
    patternBox_ = new QComboBox(this);
    patternBox_->setEditable(true);
    patternBox_->setInsertPolicy(QComboBox::NoInsert);
    patternBox_->setCompleter(nullptr);
    patternBox_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    patternBox_->setMinimumContentsLength(24);
    QStringList patterns = history_ + usualPatterns(use_);
    patterns.removeDuplicates();
    patternBox_->addItems(patterns);
    patternBox_->setToolTip(localised("Fields between percent signs, and the text between them"));
    caption->setBuddy(patternBox_);
    nameByCaption(*caption);
    placeButton_ = new QPushButton(localised("&Insert Field"), this);
    placeButton_->setAutoDefault(false);
    placeButton_->setToolTip(localised("Put a field into the pattern"));
    auto* const menu = new QMenu(placeButton_);
    QStringList names(places.begin(), places.end());
    names += use_ == Use::read ? QStringLiteral("skip") : QStringLiteral("folder");
    for (const QString& name : names) {
        const QString place = u'%' + name + u'%';
        menu->addAction(place, this, [this, place] { insertPlace(place); });
    }
    placeButton_->setMenu(menu);
    line->addWidget(caption);
    line->addWidget(patternBox_, 1);
    line->addWidget(placeButton_);
    static_cast<QVBoxLayout*>(layout())->addLayout(line);
    auto* const help = new QLabel(
        use_ == Use::read ? localised("%skip% stands for text that is left out, a slash for a folder.")
                          : localised("%folder% stands for the name of the file's folder."),
        this);
    help->setTextFormat(Qt::PlainText);
    help->setWordWrap(true);
    layout()->addWidget(help);
}

void NamesDialog::makePreview() {
    preview_ = new QTableView(this);
    preview_->setModel(&model_);
    preview_->setAccessibleName(localised("Preview"));
    preview_->setToolTip(localised("What becomes of every file"));
    preview_->setTabKeyNavigation(false);
    preview_->setSelectionBehavior(QAbstractItemView::SelectRows);
    preview_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    preview_->setAlternatingRowColors(true);
    preview_->setWordWrap(false);
    preview_->verticalHeader()->hide();
    preview_->horizontalHeader()->setHighlightSections(false);
    preview_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    layout()->addWidget(preview_);
    summary_ = new QLabel(this);
    summary_->setTextFormat(Qt::PlainText);
    summary_->setWordWrap(true);
    layout()->addWidget(summary_);
    failingOnly_ = new QCheckBox(localised("Show only files that something is &wrong with"), this);
    failingOnly_->setToolTip(localised("Hide the files that the pattern fits"));
    connect(failingOnly_, &QCheckBox::toggled, &model_, &NamesPreviewModel::showFailingOnly);
    layout()->addWidget(failingOnly_);
}

void NamesDialog::makeButtons() {
    auto* const buttons = new QDialogButtonBox(this);
    set_ = buttons->addButton(use_ == Use::read ? localised("&Set Tags") : localised("&Set Names"),
                              QDialogButtonBox::AcceptRole);
    set_->setDefault(true);
    set_->setToolTip(localised("Make these edits of the table; no file changes before they are applied"));
    QPushButton* const cancel = buttons->addButton(localised("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setAutoDefault(false);
    cancel->setToolTip(localised("Leave everything as it is"));
    connect(buttons, &QDialogButtonBox::accepted, this, &NamesDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &NamesDialog::reject);
    layout()->addWidget(buttons);
}

void NamesDialog::insertPlace(const QString& place) {
    patternBox_->lineEdit()->insert(place);
    patternBox_->setFocus();
}

std::vector<portable::Field> NamesDialog::fields() const {
    return pattern_ ? pattern_->fields() : std::vector<portable::Field>();
}

QStringList NamesDialog::titles() const {
    if (use_ == Use::write) {
        return {localised("New Name")};
    }
    QStringList titles;
    for (const portable::Field field : fields()) {
        titles += fieldTitle(field);
    }
    return titles;
}

void NamesDialog::readPattern() {
    ++version_;
    set_->setEnabled(false);
    const auto parsed = NamePattern::parsed(patternBox_->currentText(), use_);
    if (const auto* const mistake = std::get_if<NamePattern::Mistake>(&parsed)) {
        pattern_.reset();
        model_.setRows({}, {});
        tell(mistake->sentence);
        return;
    }
    pattern_ = std::get<NamePattern>(parsed);
    makeRows(*pattern_);
}

void NamesDialog::makeRows(const NamePattern& pattern) {
    if (sources_->size() <= fewRows) {
        take(previewOf(use_, *sources_, *others_, pattern));
        return;
    }
    tell(localised("The preview is being made."));
    thread_.clear();
    thread_.start([this, pattern, use = use_, sources = sources_, others = others_, version = version_] {
        auto rows =
            std::make_shared<std::vector<NamesPreviewRow>>(previewOf(use, *sources, *others, pattern));
        QMetaObject::invokeMethod(
            this,
            [this, rows, version] {
                if (version == version_) {
                    take(std::move(*rows));
                }
            },
            Qt::QueuedConnection);
    });
}

void NamesDialog::take(std::vector<NamesPreviewRow> rows) {
    model_.setRows(std::move(rows), titles());
    const int columns = model_.columnCount();
    for (int column = 0; column < columns; ++column) {
        preview_->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    }
    // What is wrong with a file is read whole; the others share the rest.
    preview_->horizontalHeader()->setResizeContentsPrecision(rowsMeasured);
    preview_->horizontalHeader()->setSectionResizeMode(columns - 1, QHeaderView::ResizeToContents);
    const int applying = model_.applying();
    const auto failing =
        std::count_if(model_.rows().begin(), model_.rows().end(), [](const auto& row) { return row.fails; });
    QStringList parts{localised("Files that change: %@.", number(applying))};
    if (failing > 0) {
        parts += localised("Files that something is wrong with: %@; they are left alone.",
                           number(static_cast<int>(failing)));
    }
    tell(joinedSentences(parts));
    set_->setEnabled(applying > 0);
}

void NamesDialog::tell(const QString& text) {
    summary_->setText(text);
    patternBox_->setAccessibleDescription(text);
}

void NamesDialog::accept() {
    if (!set_->isEnabled()) {
        return;
    }
    history_.removeAll(patternBox_->currentText());
    history_.prepend(patternBox_->currentText());
    while (history_.size() > longestHistory) {
        history_.removeLast();
    }
    QDialog::accept();
}

} // namespace velmora
