#pragma once

#include "platform/image.h"

#include <QUrl>

#include <optional>

class QAbstractButton;
class QObject;

namespace velmora {

/** Fetches the image at URL ("http:", "https:", "data:", or a regular file as "file:") and blocks until the
   transfer has ended or failed: no time limit, no cache, no second try; redirections are followed. CANCEL, a
   button where there is one, ends the transfer, as Escape does; that is a transfer that failed. Events are
   handled meanwhile, except a user's input (see InputBlock). What came decides, not the file's name and not
   the server's status: no image stands for a transfer that failed and for content that is no image.

   No value when the fetch was cut short because CONTEXT, the part of the window that asked, went away or the
   program quits. */
[[nodiscard]] std::optional<ImageRef> fetchImage(const QUrl& url, const QObject* context,
                                                 QAbstractButton* cancel = nullptr);

} // namespace velmora
