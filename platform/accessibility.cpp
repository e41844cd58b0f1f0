#include "accessibility.h"

#include "localisation.h"

#include <QAccessibleWidget>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QToolButton>
#include <QVariant>

namespace velmora {
namespace {

constexpr const char* roleProperty = "accessibleRole";

QAccessibleInterface* interfaceWithRole(const QString& /*className*/, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget ? widget->property(roleProperty) : QVariant();
    return role.isValid() ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()))
                          : nullptr;
}

void nameField(QWidget& field, const QString& name) {
    field.setAccessibleName(name);
    if (const auto* box = qobject_cast<QComboBox*>(&field); box && box->lineEdit()) {
        box->lineEdit()->setAccessibleName(name);
    }
}

} // namespace

QString plainCaption(const QString& caption) {
    QString text = caption;
    text.replace(QLatin1String("&&"), QString(QChar::Null));
    if (const qsizetype letter = text.indexOf(QLatin1String("(&")); letter >= 0 && text.size() > letter + 3) {
        text.remove(letter, 4);
    }
    text.remove(u'&');
    return text.replace(QChar::Null, u'&');
}

void setAccessibleRole(QWidget& widget, QAccessible::Role role) {
    QAccessible::installFactory(interfaceWithRole); // once, however often it is called
    widget.setProperty(roleProperty, static_cast<int>(role));
}

void nameByCaption(const QLabel& caption) {
    QString name = plainCaption(caption.text());
    if (name.endsWith(u':') || name.endsWith(u'：')) {
        name.chop(1);
    }
    name = name.trimmed(); // some languages put a space in front of a colon
    if (QWidget* const field = caption.buddy()) {
        nameField(*field, name);
    }
}

void nameControlsByCaptions(QWidget& window) {
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        button->setAccessibleName(plainCaption(button->text()));
    }
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        nameByCaption(*label);
    }
    for (QLineEdit* field : window.findChildren<QLineEdit*>()) {
        for (QToolButton* clear : field->findChildren<QToolButton*>()) {
            clear->setAccessibleName(localised("Clear"));
            clear->setToolTip(localised("Clear the field"));
        }
    }
    for (QSplitter* splitter : window.findChildren<QSplitter*>()) {
        splitter->setAccessibleName(localised("Parts of the window"));
        for (int index = 0; index < splitter->count(); ++index) {
            splitter->handle(index)->setAccessibleName(localised("Divider"));
            splitter->handle(index)->setToolTip(localised("Gives the parts of the window more or less room"));
        }
    }
}

} // namespace velmora
