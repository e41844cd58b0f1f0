#pragma once

#include "in_place_obstacle.h"

#include "model/media_type.h"
#include "taglib/file_info.h"

#include <QByteArrayView>
#include <QString>
#include <QVariantMap>

#include <array>
#include <optional>

/** The tag that is read and written in place. Nothing else in this room knows the tag library's record.
   METADATA is MediaFile's dictionary; KIND says which file carries the tag, which module it is for, and which
   places of a record the dictionary's texts are. */
namespace velmora {

/** Puts what the tag says into METADATA: every text, the year, and the cover where there is one. All is empty
   where no tag can be read. Logs both. */
void readTagInPlace(const MediaKind& kind, QVariantMap& metadata);

/** Writes METADATA into the tag and logs that. Gives what is left of a failure, and the file is then as the
   tag library leaves it; nothing where it was written. */
[[nodiscard]] std::optional<FailedSave> writeTagInPlace(const MediaKind& kind, const QVariantMap& metadata);

/** Whether the tag says what METADATA says. Logs nothing. */
[[nodiscard]] bool tagInPlaceSays(const MediaKind& kind, const QVariantMap& metadata);

/** The functions that read and write one kind of tag. Both take the path in the file system's encoding and
   return non-zero for success. The third finds out why a store failed. */
struct TagModule {
    int (*load)(const char* path, _file_info_t* info);
    int (*store)(const char* path, _file_info_t* info);
    SaveObstacle (*obstacle)(const QString& path, const FailedSave& failed);
};

/** The tag module for files with EXTENSION (without its dot), whatever its case; ID3 for all that have no
   other. */
[[nodiscard]] const TagModule& tagModuleOfExtension(const QString& extension);

/** Encodings that a tag's bytes are tried with, in this order, under their traditional numbers: UTF-8, ISO
   Latin 1, Mac OS Roman, ISO Latin 2, Windows 1252, 1250, 1251, 1253 and 1254, Japanese EUC, ISO-2022-JP,
   Shift JIS. Every byte sequence is valid ISO Latin 1, so the ones behind it only document what was thought
   of. */
inline constexpr std::array<int, 12> conv_test = {4, 5, 30, 9, 12, 15, 11, 13, 14, 3, 21, 8};

/** The text of a tag's bytes: the first encoding of conv_test that fits. Empty for no bytes. */
[[nodiscard]] QString decodeTagText(QByteArrayView bytes);

} // namespace velmora
