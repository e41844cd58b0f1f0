#include "box_bytes.h"

namespace velmora::test {

namespace {

using namespace std::string_literals;

std::string number(unsigned long long value, int bytes) {
    std::string text;
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8) {
        text += static_cast<char>(value >> shift);
    }
    return text;
}

} // namespace

std::string be16(unsigned value) {
    return number(value, 2);
}

std::string be32(unsigned long value) {
    return number(value, 4);
}

std::string be64(unsigned long long value) {
    return number(value, 8);
}

std::string box(std::string_view type, std::string_view content) {
    return be32(8 + content.size()) + std::string(type) + std::string(content);
}

std::string item(std::string_view type, std::string_view value, unsigned kind) {
    return box(type, box("data", be32(kind) + be32(0) + std::string(value)));
}

std::string free_item(std::string_view domain, std::string_view name, std::string_view value) {
    return box("----", box("mean", be32(0) + std::string(domain)) + box("name", be32(0) + std::string(name)) +
                           box("data", be32(1) + be32(0) + std::string(value)));
}

std::string item_list(std::string_view items, std::string_view after) {
    const std::string handler = box("hdlr", be32(0) + be32(0) + "mdirappl" + std::string(9, '\0'));
    return box("udta", box("meta", be32(0) + handler + box("ilst", items) + std::string(after)));
}

std::string track(std::string_view offsets) {
    const std::string table = box("stco", be32(0) + be32(offsets.size() / 4) + std::string(offsets));
    return box("trak", box("mdia", box("minf", box("stbl", table))));
}

} // namespace velmora::test
