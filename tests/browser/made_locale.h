#pragma once

#include "support/scratch_folder.h"

#include <clocale>
#include <cstdlib>
#include <string>

namespace velmora::test {

/** Puts the locale back that was in force before. */
class LocaleGuard {
public:
    LocaleGuard() : former_(std::setlocale(LC_ALL, nullptr)) {}
    ~LocaleGuard() { std::setlocale(LC_ALL, former_.c_str()); }
    LocaleGuard(const LocaleGuard&) = delete;
    LocaleGuard& operator=(const LocaleGuard&) = delete;

private:
    std::string former_;
};

/** A locale that is made for the test and in force as long as the object lives. */
class MadeLocale {
public:
    /** NAME as in "de_DE", CHARMAP as in "UTF-8". */
    MadeLocale(const std::string& name, const std::string& charmap) {
        const std::string make =
            "localedef -i " + name + " -f " + charmap + " '" + (folder_ / name) + "' > /dev/null 2>&1";
        setenv("LOCPATH", folder_.path().c_str(), 1);
        isThere_ = std::system(make.c_str()) == 0 && std::setlocale(LC_ALL, name.c_str());
    }
    ~MadeLocale() { unsetenv("LOCPATH"); }
    MadeLocale(const MadeLocale&) = delete;
    MadeLocale& operator=(const MadeLocale&) = delete;

    /** False where the system lacks the locale's sources. */
    [[nodiscard]] bool isThere() const { return isThere_; }

private:
    LocaleGuard guard_;
    ScratchFolder folder_;
    bool isThere_ = false;
};

} // namespace velmora::test
