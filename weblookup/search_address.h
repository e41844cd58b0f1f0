#pragma once

#include <QString>
#include <QUrl>

#include <array>
#include <optional>

namespace velmora {

/** Site codes: the index in the search panel's popup, and the kind of page that a form fill reads. */
inline constexpr int siteImdb = 0;
inline constexpr int siteAmazon = 1;
inline constexpr int siteGoogle = 2;
inline constexpr int siteCount = 3;

/** The sites' names as the popup shows them, in the order of their codes. */
[[nodiscard]] const std::array<QString, siteCount>& siteNames();

/** The hosts that are asked, in the order of the site codes; each may carry a port ("127.0.0.1:8080"). */
using SearchHosts = std::array<QString, siteCount>;
[[nodiscard]] SearchHosts defaultSearchHosts();

/** The address that looks TEXT up on the site of code SITE; no value for any other code. What may not stand
   in an address is percent-escaped as UTF-8; what may, "&" and "=" included, stays, and so speaks to the
   site. */
[[nodiscard]] std::optional<QUrl> searchAddress(const QString& text, int site, const SearchHosts& hosts);

} // namespace velmora
