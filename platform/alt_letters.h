#pragma once

class QWidget;

namespace velmora {

/** Keeps Alt and a letter from being taken for the letter alone by the controls in WINDOW that are typed into
   or chosen from by typing. The letter of a button that can't be pressed goes to the control that has the
   keyboard, which would otherwise type it. Controls that come later are not looked after. */
void keepAltLettersFromTyping(QWidget& window);

} // namespace velmora
