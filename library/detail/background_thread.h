#pragma once

namespace velmora {

/** Lets the window's own thread, which draws and answers the user, go before the calling one from now on. On
   a machine with a free core it makes no difference. */
void stayInBackground();

} // namespace velmora
