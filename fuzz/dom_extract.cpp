#include "harness.h"

#include "platform/web/detail/dom_snapshot.h"
#include "weblookup/detail/imdb_page.h"
#include "weblookup/detail/store_page.h"

#include <QString>

#include <array>
#include <memory>

namespace velmora::fuzz {
namespace {

struct Tag {
    const char* name;
    DomClass domClass;
};

constexpr std::array<Tag, 14> tags = {{{"DIV", DomClass::Other},
                                       {"H5", DomClass::Other},
                                       {"A", DomClass::DOMHTMLAnchorElement},
                                       {"TABLE", DomClass::Other},
                                       {"TBODY", DomClass::Other},
                                       {"TR", DomClass::DOMHTMLTableRowElement},
                                       {"TD", DomClass::DOMHTMLTableCellElement},
                                       {"IMG", DomClass::DOMHTMLImageElement},
                                       {"UL", DomClass::Other},
                                       {"LI", DomClass::DOMHTMLLIElement},
                                       {"B", DomClass::Other},
                                       {"BR", DomClass::DOMHTMLBRElement},
                                       {"TITLE", DomClass::Other},
                                       {"svg", DomClass::Other}}};

/** What the extractors look for. */
constexpr std::array<const char*, 19> phrases = {"info",
                                                 "cast",
                                                 "poster",
                                                 "prodImageCell",
                                                 "prodImage",
                                                 "http://h/p_AA240_.jpg",
                                                 "Director:",
                                                 "Genre:",
                                                 "Release Date:",
                                                 "more",
                                                 "Plot Outline:",
                                                 "Actors:",
                                                 "Certification:",
                                                 "USA:Unrated",
                                                 "Rating",
                                                 "14 June 2001 (",
                                                 "Directors:",
                                                 "June 14, 2001",
                                                 "Product Description"};

/** A phrase of the list, or bytes of the input's own. */
QString text(Input& input) {
    const std::uint8_t choice = input.byte();
    return choice < phrases.size() ? QString::fromUtf8(phrases[choice])
                                   : QString::fromUtf8(QByteArray::fromStdString(input.bytes()));
}

/** A document from instructions of a byte each: close an element, add text, a comment or an attribute, or
   open an element. */
std::shared_ptr<const DomDocument> built_document(Input& input) {
    auto document = std::make_shared<DomDocument>();
    std::vector<DomNode*> open = {document->root()};
    while (!input.at_end()) {
        const std::uint8_t instruction = input.byte() % 32;
        DomNode node;
        if (instruction < tags.size()) {
            node.nodeName = QString::fromUtf8(tags[instruction].name);
            node.domClass = tags[instruction].domClass;
            node.isElement = true;
            node.isHTMLElement = node.nodeName != QLatin1String("svg");
            open.push_back(document->append(open.back(), node));
        } else if (instruction < 18) {
            if (open.size() > 1) {
                open.pop_back();
            }
        } else if (instruction < 24) {
            node.nodeName = QStringLiteral("#text");
            node.domClass = DomClass::DOMText;
            node.data = text(input);
            document->append(open.back(), node);
        } else if (instruction == 24) {
            node.nodeName = QStringLiteral("#comment");
            node.data = text(input);
            document->append(open.back(), node);
        } else if (instruction == 25) {
            open.back()->className = text(input);
        } else if (instruction == 26) {
            open.back()->name = text(input);
        } else if (instruction == 27) {
            open.back()->src = text(input);
        } else {
            const char* const name = instruction < 30 ? "id" : "alt";
            open.back()->attributes.emplace_back(QString::fromLatin1(name), text(input));
        }
    }
    return document;
}

void require_sound(const FormFillInfo& info) {
    for (const auto& list : {info.cast, info.directors, info.genres}) {
        require(!list || !list->isEmpty(), "a list without names is no value");
    }
    require(!info.year || info.year->size() == 4, "a year has four digits");
    require(!info.releaseDate || (info.releaseDate->isValid() && info.year),
            "a release date is a date, with its year");
}

} // namespace
} // namespace velmora::fuzz

/** Input: a byte of choices; then either a page's snapshot or the instructions of built_document. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    using namespace velmora::fuzz;
    Input input(data, size);
    const std::uint8_t choices = input.byte();
    const std::shared_ptr<const DomDocument> document =
        choices & 1 ? readDomSnapshot(QString::fromUtf8(QByteArray::fromStdString(input.rest())))
                    : built_document(input);
    if (!document) {
        return 0;
    }
    int fetches_left = choices >> 4;
    const ImageFetch fetch = [&](const QUrl& url) {
        require(url.isValid() && !url.isEmpty(), "only what makes an address is fetched");
        return --fetches_left == 0 ? QImage(1, 1, QImage::Format_RGB32) : QImage();
    };
    FormFillInfo movie;
    readImdbPage(*document, fetch, movie);
    require_sound(movie);
    FormFillInfo product;
    readStorePage(*document, fetch, product);
    require_sound(product);
    require(!product.genres, "a store's page gives no genres");
    return 0;
}
