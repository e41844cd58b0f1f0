#include "notice_bar.h"

#include "platform/accessibility.h"
#include "platform/localisation.h"
#include "platform/symbol.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>

namespace velmora {

namespace {

constexpr int mostActions = 2;

QLabel* newSign(Notice::Kind kind, QWidget& bar) {
    const QStyle::StandardPixmap sign =
        kind == Notice::Kind::Warning ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
    const int side = bar.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &bar);
    auto* const label = new QLabel;
    label->setAccessibleName(kind == Notice::Kind::Warning ? localised("Warning") : localised("Information"));
    label->setPixmap(bar.style()->standardIcon(sign, nullptr, &bar).pixmap(side, side));
    return label;
}

QLabel* newText(const QString& text) {
    auto* const label = new QLabel(text);
    label->setObjectName(QStringLiteral("lbl_notice"));
    label->setTextFormat(Qt::PlainText);
    label->setToolTip(text);
    // One line where there is room for it. In a small window a second one is better than a reason that nobody
    // sees.
    label->setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    label->setSizePolicy(policy);
    return label;
}

} // namespace

QString shortened(const QString& name) {
    constexpr qsizetype longest = 40;
    constexpr qsizetype ending = 15;
    const QString line = name.simplified();
    return line.size() <= longest ? line
                                  : line.first(longest - ending - 1) + QChar(0x2026) + line.last(ending);
}

NoticeBar::NoticeBar(QWidget* parent) : QFrame(parent) {
    setFrameShape(QFrame::StyledPanel);
    setAccessibleRole(*this, QAccessible::AlertMessage);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &NoticeBar::dismiss);
    const auto* const key = new QShortcut(QKeySequence(Qt::Key_F6), this);
    connect(key, &QShortcut::activated, this, [this] { first_->setFocus(Qt::ShortcutFocusReason); });
    hide();
}

void NoticeBar::show(const Notice& notice) {
    notices_.removeIf([&](const Notice& other) { return other.topic == notice.topic; });
    notices_.append(notice);
    showLast();
}

void NoticeBar::showBehind(const Notice& notice) {
    if (notices_.isEmpty()) {
        show(notice);
    } else {
        notices_.prepend(notice);
    }
}

void NoticeBar::withdraw(Notice::Topic topic) {
    const bool wasShown = holdsNotice() && notices_.last().topic == topic;
    notices_.removeIf([&](const Notice& notice) { return notice.topic == topic; });
    if (wasShown) {
        showLast();
    }
}

/** The notice that is shown has been read. */
void NoticeBar::dismiss() {
    if (holdsNotice()) {
        notices_.removeLast();
        showLast();
    }
}

void NoticeBar::clear() {
    notices_.clear();
    showLast();
}

void NoticeBar::showLast() {
    const bool hadKeyboard = hasKeyboard();
    if (notices_.isEmpty() && hadKeyboard) {
        focusNextChild();
    }
    removeRow();
    if (notices_.isEmpty()) {
        hide();
        return;
    }
    const Notice& notice = notices_.last();
    makeRow(notice);
    setAccessibleName(notice.text);
    if (notice.shown.count() > 0) {
        timer_.start(notice.shown);
    }
    QFrame::show();
    if (hadKeyboard) {
        first_->setFocus();
    }
    announce();
}

void NoticeBar::removeRow() {
    timer_.stop();
    if (!row_) {
        return;
    }
    // Not at once: a button in it may be what takes it away.
    row_->hide();
    row_->deleteLater();
    row_ = nullptr;
    first_ = nullptr;
}

void NoticeBar::makeRow(const Notice& notice) {
    row_ = new QWidget(this);
    auto* const layout = new QHBoxLayout(row_);
    layout->setContentsMargins(6, 3, 3, 3);
    layout->setSpacing(6);
    layout->addWidget(newSign(notice.kind, *this));
    layout->addWidget(newText(notice.text), 1);
    const QStringList names = {QStringLiteral("btn_noticeFirst"), QStringLiteral("btn_noticeSecond")};
    QList<QPushButton*> buttons;
    for (int i = 0; i < notice.actions.size() && i < mostActions; ++i) {
        buttons += addButton(names[i], notice.actions[i]);
    }
    auto* const close = addButton(
        QStringLiteral("btn_noticeClose"),
        {{}, localised("Close this notice"), QStringLiteral("window-close"), [this] { dismiss(); }});
    close->setAccessibleName(localised("Close"));
    close->setFlat(true);
    buttons += close;
    first_ = buttons.first();
    QWidget* previous = controlInFront();
    for (QPushButton* button : buttons) {
        layout->addWidget(button);
        setTabOrder(previous, button);
        previous = button;
    }
    this->layout()->addWidget(row_);
}

/** The control after which the keyboard comes to the bar: an order can be made of controls alone. */
QWidget* NoticeBar::controlInFront() {
    QWidget* control = previousInFocusChain();
    while (control != this && !(control->focusPolicy() & Qt::TabFocus)) {
        control = control->previousInFocusChain();
    }
    return control;
}

QPushButton* NoticeBar::addButton(const QString& name, const Notice::Action& action) {
    auto* const button = new QPushButton(row_);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->setText(action.caption);
    button->setToolTip(action.toolTip);
    button->setIcon(symbol(action.symbol));
    connect(button, &QPushButton::clicked, this, action.act);
    return button;
}

void NoticeBar::announce() {
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

bool NoticeBar::hasKeyboard() const {
    return row_ && row_->isAncestorOf(QApplication::focusWidget());
}

void NoticeBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        dismiss();
        return;
    }
    QFrame::keyPressEvent(event);
}

} // namespace velmora
