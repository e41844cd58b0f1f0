// The yardstick of a start: links TagLib, and ends.
#include <fileref.h>

int main(int count, char** arguments) {
    return count > 1 && TagLib::FileRef(arguments[1], false).isNull() ? 1 : 0;
}
