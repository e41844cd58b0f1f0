#pragma once

class QString;
class QWidget;

namespace velmora {

/** Keeps Alt and a letter from being taken for the letter alone by the controls in WINDOW that are typed into
   or chosen from by typing. The letter of a button that can't be pressed goes to the control that has the
   keyboard, which would otherwise type it. Controls that come later are not looked after. */
void keepAltLettersFromTyping(QWidget& window);

/** Gives CONTROL the key KEYS, as "Alt+J", where its caption has no letter of its own, and adds it to the
   control's tip: the key presses a button and goes to anything else. KEYS may be localised. */
void giveAltLetter(QWidget& control, const QString& keys);

} // namespace velmora
