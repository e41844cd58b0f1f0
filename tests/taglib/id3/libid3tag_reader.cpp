#include "libid3tag_reader.h"

#include <gtest/gtest.h>
#include <id3tag.h>

#include <cstdlib>

namespace velmora::test {
namespace {

std::string latin1(const id3_ucs4_t* text) {
    id3_latin1_t* const copy = id3_ucs4_latin1duplicate(text);
    const std::string bytes = reinterpret_cast<const char*>(copy);
    std::free(copy);
    return bytes;
}

/** The values of FRAME's one interesting field. */
void add_values(const id3_frame& frame, std::vector<std::string>& values) {
    std::string owner;
    for (unsigned i = 0; i < frame.nfields; ++i) {
        id3_field* const field = &frame.fields[i];
        switch (id3_field_type(field)) {
        case ID3_FIELD_TYPE_STRINGLIST:
            for (unsigned j = 0; j < id3_field_getnstrings(field); ++j) {
                values.push_back(latin1(id3_field_getstrings(field, j)));
            }
            break;
        case ID3_FIELD_TYPE_LATIN1:
            owner = reinterpret_cast<const char*>(id3_field_getlatin1(field)) + std::string(1, '\0');
            break;
        case ID3_FIELD_TYPE_BINARYDATA: {
            id3_length_t length = 0;
            const id3_byte_t* const data = id3_field_getbinarydata(field, &length);
            values.push_back(owner + std::string(reinterpret_cast<const char*>(data), length));
            break;
        }
        default:
            break;
        }
    }
}

} // namespace

ForeignTag read_with_libid3tag(const std::string& path) {
    ForeignTag found;
    id3_file* const file = id3_file_open(path.c_str(), ID3_FILE_MODE_READONLY);
    if (!file) {
        ADD_FAILURE() << "libid3tag can't open " << path;
        return found;
    }
    const id3_tag* const tag = id3_file_tag(file);
    for (unsigned i = 0; i < tag->nframes; ++i) {
        add_values(*tag->frames[i], found[tag->frames[i]->id]);
    }
    id3_file_close(file);
    return found;
}

} // namespace velmora::test
