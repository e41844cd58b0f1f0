#pragma once

#include <QString>

#include <functional>

namespace velmora {

/** A caller broke what a function requires of its arguments. */
struct AssertionFailure {
    /** One sentence that names the broken requirement. */
    QString description;
    /** The class or file that checks it, and the line that the failure is reported under. */
    QString source;
    int line = 0;
};

using AssertionHandler = std::function<void(const AssertionFailure&)>;

/** Hands FAILURE to the assertion handler. The first handler writes one line to the application log and
   aborts the process; when a replaced one comes back, so does this function, and the caller answers as best
   it can. */
void assertionFailed(const AssertionFailure& failure);

/** Replaces the assertion handler and returns the former one; an empty HANDLER stands for the first one. Main
   thread only. Nothing in the program calls it. */
AssertionHandler setAssertionHandler(AssertionHandler handler);

} // namespace velmora
