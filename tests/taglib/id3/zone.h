#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace velmora::test {

/** The process's time zone while the object lives, in the form of the TZ variable. */
class Zone {
public:
    explicit Zone(const char* name) {
        if (const char* const before = std::getenv("TZ")) {
            before_ = before;
        }
        set(name);
    }
    ~Zone() { set(before_ ? before_->c_str() : nullptr); }
    Zone(const Zone&) = delete;
    Zone& operator=(const Zone&) = delete;

private:
    static void set(const char* name) {
        if (name) {
            ::setenv("TZ", name, 1);
        } else {
            ::unsetenv("TZ");
        }
        ::tzset();
    }
    std::optional<std::string> before_;
};

} // namespace velmora::test
