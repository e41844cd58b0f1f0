#pragma once

#include "browser/media_document.h"
#include "platform/file_path.h"

#include <QStringList>

#include <functional>
#include <optional>

namespace velmora::test {

/** A document that opens nothing, writes down what it was asked for, and answers as a test wants. */
class FakeMediaDocument : public MediaDocument {
public:
    enum class Answer { Open, Cancel, Fail };

    [[nodiscard]] QString displayName() const override { return {}; }
    [[nodiscard]] MediaFile* mediaFile() const override { return nullptr; }
    bool saveMediaFile(Error*) override { return false; }

    bool readFromURL(const std::optional<QUrl>& url, const QString& type, Error* error) override {
        requests += url ? pathFromFileUrl(*url) : QStringLiteral("close");
        types += type;
        hadErrorSlot = error != nullptr;
        errorWasClear = error && error->domain.isEmpty() && error->code == 0 && error->userInfo.isEmpty();
        if (whileOpening) {
            whileOpening();
        }
        if (answer == Answer::Fail && error) {
            *error = failure;
        }
        return answer == Answer::Open;
    }

    Answer answer = Answer::Open;
    Error failure{NSMachErrorDomain, 0, {{NSLocalizedDescriptionKey, QStringLiteral("no")}}};
    std::function<void()> whileOpening;
    /** The path of each file that was to be opened, "close" for none. */
    QStringList requests;
    QStringList types;
    bool hadErrorSlot = false;
    bool errorWasClear = false;
};

} // namespace velmora::test
