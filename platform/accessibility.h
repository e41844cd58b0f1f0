#pragma once

#include <QAccessible>
#include <QString>

class QLabel;
class QWidget;

namespace velmora {

/** What WIDGET is to assistive technologies, for widgets that the toolkit knows nothing of: without a role
   they count as filler between controls. To be called before anything else that they are told of, as its
   name. */
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/** CAPTION without the mark of its letter; a letter in brackets behind a text of another script goes, too. */
[[nodiscard]] QString plainCaption(const QString& caption);

/** Names the control that CAPTION belongs to, and the field inside it if there is one, as the caption reads,
   without its colon. To be called again when the caption changes. */
void nameByCaption(const QLabel& caption);

/** Names what WINDOW holds by what is seen of it, so that a control is called what it is spoken as: buttons
   and fields by their captions, the buttons inside fields and the handles between the parts of the window by
   what they do. Controls that come later are not looked after. */
void nameControlsByCaptions(QWidget& window);

} // namespace velmora
