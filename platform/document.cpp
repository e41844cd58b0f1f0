#include "document.h"

namespace velmora {

void Document::updateChangeCount(ChangeType change) {
    changeCount_ = change == ChangeType::Done ? changeCount_ + 1 : 0;
}

bool Document::isDocumentEdited() const {
    return changeCount_ != 0;
}

} // namespace velmora
