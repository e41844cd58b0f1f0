// read_back FILE: the text frames that libid3tag finds in FILE, one "ID=text" a line, and pictures as "APIC=n
// bytes".

#include <id3tag.h>

#include <cstdio>
#include <cstdlib>

namespace {

void print_frame(const id3_frame& frame) {
    for (unsigned i = 0; i < frame.nfields; ++i) {
        const id3_field* field = &frame.fields[i];
        if (id3_field_type(const_cast<id3_field*>(field)) == ID3_FIELD_TYPE_STRINGLIST) {
            for (unsigned j = 0; j < id3_field_getnstrings(field); ++j) {
                // The texts are UTF-8 under the label ISO-8859-1: give the bytes back as they lie in the
                // file.
                id3_latin1_t* text = id3_ucs4_latin1duplicate(id3_field_getstrings(field, j));
                std::printf("%s=%s\n", frame.id, reinterpret_cast<const char*>(text));
                std::free(text);
            }
        } else if (id3_field_type(const_cast<id3_field*>(field)) == ID3_FIELD_TYPE_BINARYDATA) {
            id3_length_t length = 0;
            (void)id3_field_getbinarydata(field, &length);
            std::printf("%s=%lu bytes\n", frame.id, length);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    id3_file* file = argc == 2 ? id3_file_open(argv[1], ID3_FILE_MODE_READONLY) : nullptr;
    if (!file) {
        std::fprintf(stderr, "usage: read_back FILE\n");
        return 2;
    }
    const id3_tag* tag = id3_file_tag(file);
    for (unsigned i = 0; i < tag->nframes; ++i) {
        print_frame(*tag->frames[i]);
    }
    id3_file_close(file);
    return 0;
}
