#include "taglib_peer.h"

#include <asffile.h>
#include <asfpicture.h>
#include <asftag.h>
#include <attachedpictureframe.h>
#include <id3v2framefactory.h>
#include <id3v2header.h>
#include <id3v2synchdata.h>
#include <id3v2tag.h>
#include <infotag.h>
#include <mpegfile.h>
#include <rifffile.h>

namespace peer {

namespace {

std::string utf8(const TagLib::String& text) {
    return text.to8Bit(true);
}

Tags common(const TagLib::Tag& tag) {
    Tags tags;
    tags.title = utf8(tag.title());
    tags.artist = utf8(tag.artist());
    tags.album = utf8(tag.album());
    tags.genre = utf8(tag.genre());
    tags.year = tag.year();
    return tags;
}

std::string bytes(const TagLib::ByteVector& data) {
    return {data.data(), data.size()};
}

Tags fromId3(const TagLib::ID3v2::Tag& tag) {
    Tags tags = common(tag);
    const TagLib::ID3v2::FrameList& pictures = tag.frameList("APIC");
    if (!pictures.isEmpty()) {
        if (const auto* picture =
                dynamic_cast<const TagLib::ID3v2::AttachedPictureFrame*>(pictures.front())) {
            tags.picture = bytes(picture->picture());
        }
    }
    return tags;
}

/** A song with its tag at the end, which TagLib doesn't look for by itself. */
class AppendedFile : public TagLib::File {
public:
    static constexpr unsigned headerSize = 10;

    explicit AppendedFile(const char* path) : TagLib::File(path) {
        if (!isOpen()) {
            return;
        }
        seek(-static_cast<long>(headerSize), End);
        const long footer = tell();
        const TagLib::ByteVector data = readBlock(headerSize);
        if (data.startsWith("3DI")) {
            const unsigned size = TagLib::ID3v2::SynchData::toUInt(data.mid(6, 4));
            offset_ = footer - static_cast<long>(size) - headerSize;
        }
    }

    [[nodiscard]] bool found() const { return offset_ >= 0; }
    [[nodiscard]] long offset() const { return offset_; }

    TagLib::Tag* tag() const override { return nullptr; }
    TagLib::AudioProperties* audioProperties() const override { return nullptr; }
    bool save() override { return false; }

private:
    long offset_ = -1;
};

/** How much of a list is read to find out its type. */
enum class Peek { type, wholeList };

class AviFile : public TagLib::RIFF::File {
public:
    explicit AviFile(const char* path, Peek peek = Peek::type) : TagLib::RIFF::File(path, LittleEndian) {
        for (unsigned i = 0; isOpen() && i < chunkCount() && index_ < 0; ++i) {
            if (chunkName(i) == "LIST" && startOf(i, peek).startsWith("INFO")) {
                index_ = static_cast<int>(i);
            }
        }
    }

    [[nodiscard]] bool found() const { return index_ >= 0; }
    TagLib::ByteVector list() { return chunkData(static_cast<unsigned>(index_)); }
    void setList(const TagLib::ByteVector& data) { setChunkData(static_cast<unsigned>(index_), data); }

    TagLib::Tag* tag() const override { return nullptr; }
    TagLib::AudioProperties* audioProperties() const override { return nullptr; }
    bool save() override { return false; }

private:
    TagLib::ByteVector startOf(unsigned chunk, Peek peek) {
        if (peek == Peek::wholeList) {
            return chunkData(chunk);
        }
        seek(chunkOffset(chunk));
        return readBlock(4);
    }

    int index_ = -1;
};

} // namespace

Tags readLeadingId3(const char* path) {
    TagLib::MPEG::File file(path, TagLib::ID3v2::FrameFactory::instance(), false);
    const TagLib::ID3v2::Tag* const tag = file.ID3v2Tag();
    return tag ? fromId3(*tag) : Tags{};
}

Tags readAppendedId3(const char* path) {
    AppendedFile file(path);
    if (!file.found()) {
        return {};
    }
    const TagLib::ID3v2::Tag tag(&file, file.offset());
    return fromId3(tag);
}

Tags readAsf(const char* path) {
    TagLib::ASF::File file(path, false);
    if (!file.isValid()) {
        return {};
    }
    Tags tags = common(*file.tag());
    const TagLib::ASF::AttributeList pictures = file.tag()->attribute("WM/Picture");
    if (!pictures.isEmpty()) {
        tags.picture = bytes(pictures.front().toPicture().picture());
    }
    return tags;
}

Tags readAvi(const char* path) {
    AviFile file(path);
    return file.found() ? common(TagLib::RIFF::Info::Tag(file.list())) : Tags{};
}

bool storeAppendedId3(const char* path, const char* title) {
    AppendedFile file(path);
    if (!file.found()) {
        return false;
    }
    TagLib::ID3v2::Tag tag(&file, file.offset());
    tag.setTitle(title);
    TagLib::ByteVector written = tag.render();
    written[5] = static_cast<char>(written[5] | 0x10); // a footer follows
    file.seek(file.offset());
    file.writeBlock(written);
    file.writeBlock(TagLib::ByteVector("3DI") + written.mid(3, AppendedFile::headerSize - 3));
    return true;
}

bool storeAsf(const char* path, const char* title) {
    TagLib::ASF::File file(path, false);
    if (!file.isValid()) {
        return false;
    }
    file.tag()->setTitle(title);
    return file.save();
}

namespace {

bool storeInAvi(const char* path, const char* title, Peek peek) {
    AviFile file(path, peek);
    if (!file.found()) {
        return false;
    }
    TagLib::RIFF::Info::Tag tag(file.list());
    tag.setTitle(title);
    file.setList(tag.render());
    return true;
}

} // namespace

bool storeAvi(const char* path, const char* title) {
    return storeInAvi(path, title, Peek::type);
}

bool storeAviReadingWholeLists(const char* path, const char* title) {
    return storeInAvi(path, title, Peek::wholeList);
}

} // namespace peer
