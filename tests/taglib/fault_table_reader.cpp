#include "fault_table_reader.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace velmora::test {

namespace {

/** Bytes taken from the front of a text; taking more than there are gives fewer and is remembered. */
class Taker {
public:
    explicit Taker(std::string_view bytes) : rest_(bytes) {}

    std::string take(std::uint64_t length) {
        const std::uint64_t count = length <= rest_.size() ? length : rest_.size();
        overrun_ |= count < length;
        const std::string taken(rest_.substr(0, count));
        rest_.remove_prefix(count);
        return taken;
    }
    std::uint64_t take_little_endian(int width) {
        std::uint64_t value = 0;
        const std::string bytes = take(static_cast<std::uint64_t>(width));
        for (std::size_t i = bytes.size(); i > 0; --i) {
            value = value << 8 | static_cast<unsigned char>(bytes[i - 1]);
        }
        return value;
    }
    std::uint64_t take_syncsafe() {
        std::uint64_t value = 0;
        for (const char byte : take(4)) {
            value = value << 7 | static_cast<unsigned char>(byte);
        }
        return value;
    }
    [[nodiscard]] bool done() const { return rest_.empty() || overrun_; }
    [[nodiscard]] bool overrun() const { return overrun_; }
    [[nodiscard]] std::uint64_t left() const { return rest_.size(); }

private:
    std::string_view rest_;
    bool overrun_ = false;
};

struct Id3Header {
    bool present = false;
    bool footer = false;
    std::uint64_t size = 0;
};

Id3Header id3_header(std::string_view bytes, std::string_view signature) {
    Taker header(bytes);
    const bool present = header.take(3) == signature;
    const std::string version_and_flags = header.take(3);
    const std::uint64_t size = header.take_syncsafe();
    return {present && !header.overrun(), !header.overrun() && (version_and_flags[2] & 0x10) != 0, size};
}

TagFields id3_fields_in(std::string_view bytes) {
    const Id3Header footer =
        bytes.size() >= 10 ? id3_header(bytes.substr(bytes.size() - 10), "3DI") : Id3Header{};
    if (footer.present && footer.size + 20 <= bytes.size()) {
        bytes.remove_prefix(bytes.size() - footer.size - 20);
    }
    const Id3Header header = id3_header(bytes, "ID3");
    TagFields fields;
    if (!header.present) {
        return fields;
    }
    Taker frames(bytes.substr(10, header.size));
    while (!frames.done()) {
        const std::string id = frames.take(4);
        const std::uint64_t size = frames.take_syncsafe();
        frames.take(2);
        const std::string body = frames.take(size);
        if (!frames.overrun() && id[0] != '\0') {
            fields.emplace_back(id, body);
        }
    }
    return fields;
}

std::string narrow(const std::string& text) {
    std::string ascii;
    for (std::size_t i = 0; i + 1 < text.size() && text[i] != '\0'; i += 2) {
        ascii += text[i];
    }
    return ascii;
}

void add_content_description(const std::string& body, TagFields* fields) {
    constexpr std::array<const char*, 5> names = {"title", "author", "copyright", "description", "rating"};
    Taker object(body);
    std::array<std::uint64_t, 5> lengths{};
    for (std::uint64_t& length : lengths) {
        length = object.take_little_endian(2);
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        fields->emplace_back(names[i], object.take(lengths[i]));
    }
}

void add_attributes(const std::string& body, TagFields* fields) {
    Taker object(body);
    object.take(2);
    while (!object.done()) {
        const std::string name = narrow(object.take(object.take_little_endian(2)));
        const std::string type = object.take(2);
        const std::string length = object.take(2);
        const std::string value = object.take(Taker(length).take_little_endian(2));
        fields->emplace_back(name, type + length + value);
    }
}

/** Walks the header object's children, each of which SEE gets with its first GUID byte. The header's size, or
   nothing where they do not add up to it. */
template <typename See>
std::optional<std::uint64_t> walk_asf_header(std::string_view bytes, See see) {
    Taker header(bytes);
    const bool is_header = header.take(1) == "\x30";
    header.take(15);
    const std::uint64_t size = header.take_little_endian(8);
    const std::uint64_t count = header.take_little_endian(4);
    header.take(2);
    for (std::uint64_t i = 0; i < count && !header.overrun(); ++i) {
        const std::string guid = header.take(16);
        const std::uint64_t child_size = header.take_little_endian(8);
        if (child_size < 24) {
            return std::nullopt;
        }
        const std::string body = header.take(child_size - 24);
        if (!header.overrun()) {
            see(guid, body);
        }
    }
    const bool adds_up = is_header && !header.overrun() && bytes.size() - header.left() == size;
    return adds_up ? std::optional(size) : std::nullopt;
}

TagFields asf_fields_in(std::string_view bytes) {
    TagFields fields;
    walk_asf_header(bytes, [&](const std::string& guid, const std::string& body) {
        if (guid[0] == '\x33') {
            add_content_description(body, &fields);
        } else if (guid[0] == '\x40') {
            add_attributes(body, &fields);
        }
    });
    return fields;
}

struct AviChunk {
    std::string id;
    std::string type; ///< a list's
    std::uint64_t position = 0;
    std::string body; ///< behind the type
};

/** Hands each chunk of an AVI file to SEE, which says whether to go on. */
template <typename See>
void walk_avi(std::string_view bytes, See see) {
    Taker riff(bytes);
    const bool is_riff = riff.take(4) == "RIFF";
    const std::uint64_t riff_size = riff.take_little_endian(4);
    Taker file(bytes.substr(0, std::min<std::uint64_t>(bytes.size(), 8 + riff_size)));
    const std::uint64_t size_with_header = file.left();
    file.take(8);
    if (!is_riff || file.take(4) != "AVI ") {
        return;
    }
    while (!file.done()) {
        const std::uint64_t position = size_with_header - file.left();
        AviChunk chunk{file.take(4), {}, position, {}};
        const std::uint64_t size = file.take_little_endian(4);
        chunk.body = file.take(size);
        file.take(file.left() > 0 ? size % 2 : 0);
        if (chunk.id == "LIST") {
            chunk.type = chunk.body.substr(0, 4);
            chunk.body.erase(0, 4);
        }
        if (file.overrun() || !see(chunk)) {
            return;
        }
    }
}

TagFields avi_fields_in(std::string_view bytes) {
    TagFields fields;
    walk_avi(bytes, [&](const AviChunk& list) {
        if (list.type != "INFO") {
            return true;
        }
        Taker chunks(list.body);
        while (!chunks.done()) {
            const std::string id = chunks.take(4);
            const std::uint64_t size = chunks.take_little_endian(4);
            fields.emplace_back(id, chunks.take(size));
            chunks.take(chunks.left() > 0 ? size % 2 : 0);
        }
        return false;
    });
    return fields;
}

std::optional<std::uint64_t> avi_media_position(std::string_view bytes) {
    std::optional<std::uint64_t> position;
    walk_avi(bytes, [&](const AviChunk& chunk) {
        if (chunk.type == "movi") {
            position = chunk.position;
        }
        return !position;
    });
    return position;
}

} // namespace

TagFields tag_fields_in(MediaFormat format, const std::string& bytes) {
    switch (format) {
    case MediaFormat::id3:
        return id3_fields_in(bytes);
    case MediaFormat::asf:
        return asf_fields_in(bytes);
    case MediaFormat::avi:
        return avi_fields_in(bytes);
    }
    return {};
}

std::optional<std::uint64_t> media_position_in(MediaFormat format, const std::string& bytes) {
    if (format == MediaFormat::asf) {
        return walk_asf_header(bytes, [](const std::string&, const std::string&) {});
    }
    if (format == MediaFormat::avi) {
        return avi_media_position(bytes);
    }
    const Id3Header header = id3_header(bytes, "ID3");
    return header.present ? 10 + header.size + (header.footer ? 10 : 0) : 0;
}

} // namespace velmora::test
