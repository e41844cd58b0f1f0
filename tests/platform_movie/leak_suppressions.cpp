// What the system's media libraries keep until the process ends is none of ours.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libglib-2.0\nleak:libgst\nleak:libpulse\n";
}
