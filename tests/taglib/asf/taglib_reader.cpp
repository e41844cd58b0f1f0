#include "taglib_reader.h"

#include <asfattribute.h>
#include <asffile.h>
#include <asfpicture.h>
#include <asftag.h>

namespace velmora::test {

namespace {

std::string text_of(const TagLib::ASF::Attribute& attribute) {
    switch (attribute.type()) {
    case TagLib::ASF::Attribute::DWordType:
        return std::to_string(attribute.toUInt());
    case TagLib::ASF::Attribute::QWordType:
        return std::to_string(attribute.toULongLong());
    case TagLib::ASF::Attribute::WordType:
        return std::to_string(attribute.toUShort());
    case TagLib::ASF::Attribute::BoolType:
        return attribute.toBool() ? "true" : "false";
    default:
        return attribute.toString().to8Bit(true);
    }
}

} // namespace

TagLibView read_with_taglib(const std::string& path) {
    TagLib::ASF::File file(path.c_str(), false);
    TagLibView view;
    view.valid = file.isValid() && file.tag();
    if (!view.valid) {
        return view;
    }
    view.title = file.tag()->title().to8Bit(true);
    view.author = file.tag()->artist().to8Bit(true);
    view.copyright = file.tag()->copyright().to8Bit(true);
    for (const auto& [name, values] : file.tag()->attributeListMap()) {
        for (const TagLib::ASF::Attribute& value : values) {
            if (name == "WM/Picture" && view.picture.empty()) {
                const TagLib::ASF::Picture picture = value.toPicture();
                view.picture.assign(picture.picture().data(), picture.picture().size());
                view.picture_mime_type = picture.mimeType().to8Bit(true);
            } else {
                view.attributes[name.to8Bit(true)].push_back(text_of(value));
            }
        }
    }
    return view;
}

} // namespace velmora::test
