#include "about_window.h"

#include "platform/accessibility.h"
#include "platform/localisation.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

namespace velmora {
namespace {

QString aboutText() {
    return QStringList{QStringLiteral("Velmora ") + QStringLiteral(VELMORA_VERSION),
                       localised("Edits titles, artists, covers and more of films and music."),
                       localised("MIT licence: free to use, to change and to pass on, without any warranty."),
                       localised("Built on Qt %@ with its web engine and multimedia, TagLib, GStreamer, "
                                 "libjpeg and libpng, each under its "
                                 "own licence.",
                                 QString::fromLatin1(qVersion())),
                       QStringLiteral("© 2026 The Velmora developers")}
        .join(QStringLiteral("\n\n"));
}

} // namespace

AboutWindow::AboutWindow(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("window_about"));
    setWindowTitle(localised("About Velmora"));
    auto* const sign = new QLabel;
    sign->setPixmap(QApplication::windowIcon().pixmap(64));
    auto* const text = new QLabel(aboutText());
    text->setObjectName(QStringLiteral("lbl_about"));
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setFocusPolicy(Qt::StrongFocus); // for who selects by the keyboard
    text->setWordWrap(true);
    text->setMinimumWidth(420);
    text->setAccessibleName(text->text());
    text->setToolTip(localised("What Velmora is and what it is built on"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setToolTip(localised("Close this window"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QGridLayout(this);
    layout->addWidget(sign, 0, 0, Qt::AlignTop);
    layout->addWidget(text, 0, 1);
    layout->addWidget(buttons, 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    nameControlsByCaptions(*this);
}

} // namespace velmora
