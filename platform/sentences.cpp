#include "sentences.h"

#include "localisation.h"

namespace velmora {

QString asSentence(const QString& phrase) {
    return localised("%@.", phrase);
}

QString joinedSentences(const QStringList& sentences) {
    QString text;
    for (const QString& sentence : sentences) {
        if (!text.isEmpty() && !text.endsWith(QChar(0x3002))) {
            text += QLatin1Char(' ');
        }
        text += sentence;
    }
    return text;
}

} // namespace velmora
