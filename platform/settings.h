#pragma once

namespace velmora {

/** The program keeps no settings that nobody asked for, and the toolkit keeps none in its name: which folders a file panel showed,
   for one. Nothing is read from such files either. To be called before anything else of the toolkit is used.
 */
void keepNoSettings();

/** Whether the user asked for portable tags at each start. */
[[nodiscard]] bool remembersPortableTags();
/** Remembers that, in a file of the folder for programs' settings; or forgets it, and leaves no file. Where the file
   can't be written, the next start does not know of it. */
void rememberPortableTags(bool remember);

} // namespace velmora
