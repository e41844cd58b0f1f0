#pragma once

#include "model/media_type.h"
#include "portable/media_kind.h"
#include "portable/tag_values.h"

#include <QVariantMap>

#include <functional>

namespace velmora {

/** The MediaType of files that other programs take for KIND. */
[[nodiscard]] MediaType mediaTypeOf(const portable::MediaKind& kind);

/** Puts VALUES into METADATA, a MediaFile's dictionary for files of TYPE. What VALUES do not have is
   empty. */
void fillMetadata(QVariantMap& metadata, const portable::TagValues& values, int type);

/** What makes a file that said OPENED say what METADATA says; both are dictionaries for files of TYPE. The
   cover is left alone: see coverEdit(). */
[[nodiscard]] portable::TagEdits editsBetween(const QVariantMap& opened, const QVariantMap& metadata,
                                              int type);

/** Makes the edit of a changed cover; may be run on any thread, and takes its time where pixels are to be
   encoded. Empty where the cover is the one that was opened. */
[[nodiscard]] std::function<portable::Edit<portable::Cover>()> coverEdit(const QVariantMap& opened,
                                                                         const QVariantMap& metadata);

/** Whether VALUES have a value that METADATA, for files of TYPE, lacks or has only the beginning of. */
[[nodiscard]] bool saysMore(const portable::TagValues& values, const QVariantMap& metadata, int type);

} // namespace velmora
