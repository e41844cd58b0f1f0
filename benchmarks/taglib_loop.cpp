// The yardstick of a listing: reads the tags of all files of one folder, one after another, and says how much
// text they hold.
#include <algorithm>
#include <fileref.h>
#include <filesystem>
#include <iostream>
#include <string>
#include <tag.h>
#include <vector>

int main(int, char** arguments) {
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        paths.push_back(entry.path().string());
    }
    std::sort(paths.begin(), paths.end());
    unsigned long length = 0;
    for (const std::string& path : paths) {
        const TagLib::FileRef file(path.c_str(), false);
        if (const TagLib::Tag* const tag = file.tag()) {
            length += tag->title().size() + tag->artist().size() + tag->album().size() +
                      tag->comment().size() + tag->genre().size() + tag->year();
        }
    }
    std::cout << length << "\n";
}
