#include "search_address.h"

namespace velmora {

namespace {

/** The path and query of each site up to the search text. The store's has its own separators escaped: the
   search text is the end of one long parameter. */
constexpr std::array<const char*, siteCount> searchPaths = {
    "/find?q=",
    "/exec/obidos/search-handle-url/index%3Dblended%26field-keywords%3D",
    "/search?q=",
};

/** Legal in an address beside letters, digits and "-._~". */
constexpr const char* legalCharacters = "!$&'()*+,/:;=?@";

} // namespace

const std::array<QString, siteCount>& siteNames() {
    static const std::array<QString, siteCount> names = {QStringLiteral("IMDb"), QStringLiteral("Amazon"),
                                                         QStringLiteral("Google")};
    return names;
}

SearchHosts defaultSearchHosts() {
    return {QStringLiteral("www.imdb.com"), QStringLiteral("www.amazon.com"),
            QStringLiteral("www.google.com")};
}

std::optional<QUrl> searchAddress(const QString& text, int site, const SearchHosts& hosts) {
    if (site < 0 || site >= siteCount) {
        return std::nullopt;
    }
    const auto index = static_cast<std::size_t>(site);
    const QByteArray base = "http://" + hosts[index].toLatin1() + searchPaths[index];
    // The text is escaped once and then taken as it is: a URL made of plain text would read "50%20" as
    // escaped already and "#" as the start of a fragment.
    return QUrl::fromEncoded(base + QUrl::toPercentEncoding(text, legalCharacters));
}

} // namespace velmora
