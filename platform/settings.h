#pragma once

namespace velmora {

/** The program keeps no settings, and the toolkit keeps none in its name: which folders a file panel showed,
   for one. Nothing is read from such files either. To be called before anything else of the toolkit is used.
 */
void keepNoSettings();

} // namespace velmora
