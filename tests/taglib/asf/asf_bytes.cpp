#include "asf_bytes.h"

#include "support/bytes.h"

#include <gtest/gtest.h>

#include <sys/mman.h>
#include <unistd.h>

namespace velmora::test {

namespace {

std::string little_endian(std::uint64_t value, int width) {
    std::string bytes;
    for (int i = 0; i < width; ++i) {
        bytes.push_back(static_cast<char>(value >> (8 * i)));
    }
    return bytes;
}

} // namespace

std::string joined(std::initializer_list<std::string> parts) {
    std::string bytes;
    for (const std::string& part : parts) {
        bytes += part;
    }
    return bytes;
}

std::string bytes_of(const std::uint8_t* bytes, std::size_t length) {
    return {reinterpret_cast<const char*>(bytes), length};
}

std::string u16(std::uint16_t value) {
    return little_endian(value, 2);
}
std::string u32(std::uint32_t value) {
    return little_endian(value, 4);
}
std::string u64(std::uint64_t value) {
    return little_endian(value, 8);
}

std::string wide(std::string_view ascii) {
    std::string bytes;
    for (const char c : ascii) {
        bytes.push_back(c);
        bytes.push_back('\0');
    }
    return bytes;
}

std::string wide_z(std::string_view ascii) {
    return ascii.empty() ? std::string() : wide(ascii) + std::string(2, '\0');
}

std::string object(std::string_view guid_digits, std::string_view body) {
    return object_of_size(guid_digits, 24 + body.size(), body);
}

std::string object_of_size(std::string_view guid_digits, std::uint64_t size, std::string_view body) {
    return hex(guid_digits) + u64(size) + std::string(body);
}

std::string content_description(std::string_view title, std::string_view author, std::string_view copyright,
                                std::string_view description, std::string_view rating) {
    std::string lengths;
    std::string texts;
    for (const std::string_view text : {title, author, copyright, description, rating}) {
        lengths += u16(static_cast<std::uint16_t>(wide_z(text).size()));
        texts += wide_z(text);
    }
    return object(cd_guid, lengths + texts);
}

std::string descriptor(std::string_view name, std::uint16_t type, std::string_view value) {
    return u16(static_cast<std::uint16_t>(2 * name.size() + 2)) + wide_z(name) + u16(type) +
           u16(static_cast<std::uint16_t>(value.size())) + std::string(value);
}

std::string text_descriptor(std::string_view name, std::string_view text) {
    return descriptor(name, 0, wide_z(text));
}

std::string ext_content_description(std::initializer_list<std::string> descriptors) {
    return object(ecd_guid, u16(static_cast<std::uint16_t>(descriptors.size())) + joined(descriptors));
}

std::string padding(std::size_t size) {
    return object(padding_guid, std::string(size - 24, '\xAA'));
}

std::string other_object() {
    return object(other_guid, "passed through, byte for byte");
}

std::string header_object(std::initializer_list<std::string> children) {
    return header_object_of_size(30 + joined(children).size(), children);
}

std::string header_object_of_size(std::uint64_t size, std::initializer_list<std::string> children) {
    return object_of_size(header_guid, size,
                          u32(static_cast<std::uint32_t>(children.size())) + hex("01 02") + joined(children));
}

OpenBytes::OpenBytes(std::string_view bytes) : file_{::memfd_create("asf", 0)} {
    EXPECT_EQ(static_cast<ssize_t>(bytes.size()), ::pwrite(file_.descriptor, bytes.data(), bytes.size(), 0));
}

OpenBytes::~OpenBytes() {
    ::close(file_.descriptor);
}

std::string OpenBytes::bytes() const {
    std::string bytes(1 << 20, '\0');
    const ssize_t count = ::pread(file_.descriptor, bytes.data(), bytes.size(), 0);
    EXPECT_GE(count, 0);
    EXPECT_LT(count, static_cast<ssize_t>(bytes.size()));
    bytes.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return bytes;
}

std::int64_t OpenBytes::position() const {
    return ::lseek(file_.descriptor, 0, SEEK_CUR);
}

void OpenBytes::seek(std::int64_t position) {
    EXPECT_EQ(position, ::lseek(file_.descriptor, position, SEEK_SET));
}

} // namespace velmora::test
