// What assistive technologies are told of the window, in each of its states, and what Alt and a letter reach.

#include "window_fixture.h"

#include "imaging/CoverArtView.h"
#include "platform/busy_indicator.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QShortcut>
#include <QSignalSpy>
#include <QSplitter>
#include <QTableView>
#include <QTest>
#include <QToolButton>

namespace velmora {
namespace {

using test::settle;
using test::text4;
using test::waitUntil;

QAccessibleInterface& interfaceOf(QObject& object) {
    return *QAccessible::queryAccessibleInterface(&object);
}

QString nameOf(QObject& object) {
    return interfaceOf(object).text(QAccessible::Name);
}

QString withoutMark(QString text) {
    return text.remove(u'&');
}

class AccessibilityTest : public test::WindowTest {
protected:
    AccessibilityTest() { QApplication::setActiveWindow(document().window()); }

    QWidgetList buttonsAndFields() {
        QWidgetList list;
        for (const char* name :
             {"btn_addFile",     "btn_addFolder",  "btn_stop",       "entry_title",      "entry_year",
              "entry_artist",    "combo_genre",    "entry_album",    "combo_rating",     "entry_desc",
              "picker_dateTime", "img_coverArt",   "btn_trimBorder", "btn_loadCoverArt", "btn_captureFrame",
              "btn_removeTag",   "btn_revertTag",  "btn_saveTag",    "combo_search",     "entry_search",
              "btn_search",      "btn_searchBack", "btn_formFill"}) {
            list += &widget<QWidget>(name);
        }
        return list += playButton();
    }
    QToolButton* playButton() { return widget<QWidget>("view_preview").findChild<QToolButton*>(); }

    /** All that is wrong with what the window tells of itself now. */
    QStringList complaints() {
        QStringList list;
        visit(interfaceOf(*document().window()), list);
        return list;
    }
    void visit(QAccessibleInterface& at, QStringList& list) {
        if (at.state().invisible) {
            return;
        }
        judge(at, list);
        if (at.role() == QAccessible::Table) {
            return; // its cells are the list's own matter
        }
        for (int index = 0; index < at.childCount(); ++index) {
            QAccessibleInterface* const child = at.child(index);
            if (child && child->isValid()) {
                visit(*child, list);
            }
        }
    }
    static void judge(QAccessibleInterface& at, QStringList& list) {
        auto* const widget = qobject_cast<QWidget*>(at.object());
        const QAccessible::Role role = at.role();
        const bool isFiller = role == QAccessible::Client || role == QAccessible::NoRole;
        const bool takesKeys = widget && widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy();
        const QString which =
            (widget ? widget->objectName() + ' ' + widget->metaObject()->className() : QString()) +
            QStringLiteral(" role %1").arg(role);
        if (isFiller && (takesKeys || (widget && !widget->accessibleName().isEmpty() &&
                                       widget->findChildren<QWidget*>().isEmpty()))) {
            list += which + " counts as filler";
        }
        const bool isSpoken =
            takesKeys || QList<QAccessible::Role>{QAccessible::PushButton,   QAccessible::ButtonMenu,
                                                  QAccessible::EditableText, QAccessible::ComboBox,
                                                  QAccessible::SpinBox,      QAccessible::Slider,
                                                  QAccessible::Table,        QAccessible::Grip,
                                                  QAccessible::Graphic,      QAccessible::Animation,
                                                  QAccessible::WebDocument,  QAccessible::MenuItem}
                             .contains(role);
        if (!isSpoken) {
            return;
        }
        // A box that is chosen from goes by what was chosen; its name is its caption.
        const bool isNamed = role == QAccessible::ComboBox ? !at.relations(QAccessible::Label).isEmpty()
                                                           : !at.text(QAccessible::Name).isEmpty();
        if (!isNamed) {
            list += which + " has no name";
        }
    }
};

TEST_F(AccessibilityTest, EveryControlIsNamedAtTheStart) {
    EXPECT_EQ(QStringList(), complaints());
}

TEST_F(AccessibilityTest, EveryControlIsNamedWhileASongIsOpen) {
    openFile("a.mp3");
    EXPECT_EQ(QStringList(), complaints());
    type("entry_title", "edited");
    EXPECT_EQ(QStringList(), complaints());
}

TEST_F(AccessibilityTest, EveryControlIsNamedWhileAFilmIsOpen) {
    openFile("a.mp4", text4("TALB", "Film"));
    EXPECT_EQ(QStringList(), complaints());
    widget<CoverArtView>("img_coverArt").setImage(QImage(30, 40, QImage::Format_RGB32));
    EXPECT_EQ(QStringList(), complaints());
    EXPECT_TRUE(waitUntil([this] { return widget<QLabel>("lbl_previewFailed").isVisible(); }));
    EXPECT_EQ(QStringList(), complaints());
    select(-1);
    EXPECT_EQ(QStringList(), complaints());
}

TEST_F(AccessibilityTest, EveryControlIsNamedWhileSomethingRuns) {
    entry("entry_search").setText("text");
    for (const char* name : {"progress_mediaSearch", "progress_search"}) {
        widget<BusyIndicator>(name).startAnimation();
    }
    emit controller().search().scanStatusChanged("/home/somebody/Music");
    EXPECT_EQ(QStringList(), complaints());
    EXPECT_EQ("/home/somebody/Music", nameOf(widget<QWidget>("lbl_scanStatus")));
}

TEST_F(AccessibilityTest, WhatTurnsIsThereWhileItTurns) {
    auto& indicator = widget<BusyIndicator>("progress_mediaSearch");
    EXPECT_TRUE(interfaceOf(indicator).state().invisible);
    indicator.startAnimation();
    EXPECT_FALSE(interfaceOf(indicator).state().invisible);
    EXPECT_TRUE(interfaceOf(indicator).state().busy);
    EXPECT_EQ(QAccessible::Animation, interfaceOf(indicator).role());
    EXPECT_EQ("Search in progress", nameOf(indicator));
    indicator.stopAnimation();
    EXPECT_TRUE(interfaceOf(indicator).state().invisible);
}

TEST_F(AccessibilityTest, ButtonsAreCalledWhatIsWrittenOnThem) {
    int buttons = 0;
    for (QPushButton* button : document().window()->findChildren<QPushButton*>()) {
        EXPECT_EQ(withoutMark(button->text()), nameOf(*button));
        ++buttons;
    }
    EXPECT_GE(buttons, 12);
}

TEST_F(AccessibilityTest, ButtonIsPressedByItsName) {
    openFile();
    type("entry_title", "edited");
    for (QPushButton* button : document().window()->findChildren<QPushButton*>()) {
        if (nameOf(*button) == "Save") {
            interfaceOf(*button).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        }
    }
    EXPECT_TRUE(waitUntil([this] { return !document().isDocumentEdited(); }));
    EXPECT_EQ(1, logged("saving tag to file"));
}

TEST_F(AccessibilityTest, FieldsAreCalledAsTheirCaptionsRead) {
    const auto expectAgreement = [this] {
        for (const QLabel* caption : document().window()->findChildren<QLabel*>()) {
            if (QWidget* const field = caption->buddy()) {
                EXPECT_EQ(withoutMark(caption->text()), field->accessibleName() + ":");
            }
        }
    };
    expectAgreement();
    openFile("a.mp4", text4("TALB", "Film"));
    EXPECT_EQ("Cast", nameOf(entry("entry_artist")));
    EXPECT_EQ("Director", nameOf(entry("entry_album")));
    expectAgreement();
    openFile("a.mp3");
    EXPECT_EQ("Artist", nameOf(entry("entry_artist")));
    EXPECT_EQ("Album", nameOf(entry("entry_album")));
    expectAgreement();
}

TEST_F(AccessibilityTest, FieldInsideTheGenreBoxAndButtonInsideTheSearchFieldHaveNames) {
    EXPECT_EQ("Genre", nameOf(*widget<QComboBox>("combo_genre").lineEdit()));
    entry("entry_search").setText("text");
    auto* const clear = entry("entry_search").findChild<QToolButton*>();
    ASSERT_NE(nullptr, clear);
    EXPECT_EQ("Clear", nameOf(*clear));
}

TEST_F(AccessibilityTest, SiteBoxHasACaptionOfItsOwn) {
    const auto captions = interfaceOf(widget<QWidget>("combo_search")).relations(QAccessible::Label);
    ASSERT_EQ(1, captions.size());
    EXPECT_EQ("Site:", captions[0].first->text(QAccessible::Name));
}

TEST_F(AccessibilityTest, CoverArtSaysWhetherThereIsSome) {
    auto& well = widget<CoverArtView>("img_coverArt");
    const auto description = [&] { return interfaceOf(well).text(QAccessible::Description); };
    EXPECT_EQ(QAccessible::Graphic, interfaceOf(well).role());
    EXPECT_EQ("Cover Art", nameOf(well));
    EXPECT_EQ("No cover art; drop an image here", description());
    well.setImage(QImage(300, 420, QImage::Format_RGB32));
    EXPECT_EQ("An image of 300 x 420 pixels", description());
    well.setImage(QImage());
    EXPECT_EQ("No cover art; drop an image here", description());
}

TEST_F(AccessibilityTest, PageIsAPage) {
    EXPECT_EQ(QAccessible::WebDocument, interfaceOf(widget<QWidget>("webview_search")).role());
}

TEST_F(AccessibilityTest, PlayButtonSaysWhatItDoes) {
    EXPECT_EQ("Play", nameOf(*playButton()));
}

TEST_F(AccessibilityTest, DateTakesOneTabStop) {
    auto& date = widget<QDateTimeEdit>("picker_dateTime");
    QWidget& before = widget<QWidget>("entry_desc");
    before.setFocus();
    QTest::keyClick(&before, Qt::Key_Tab);
    ASSERT_EQ(&date, QApplication::focusWidget());
    QTest::keyClick(&date, Qt::Key_Tab);
    EXPECT_EQ(&widget<QWidget>("img_coverArt"), QApplication::focusWidget());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(&date, QApplication::focusWidget());
    QTest::keyClick(&date, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(&before, QApplication::focusWidget());
}

class AltLetterTest : public AccessibilityTest {
protected:
    /** The letters of the window: each with what it is for. */
    QMultiMap<QString, QWidget*> letters() {
        QMultiMap<QString, QWidget*> found;
        const auto add = [&](const QKeySequence& keys, QWidget* control) {
            if (keys.count() == 1 && keys[0].keyboardModifiers() == Qt::AltModifier) {
                found.insert(keys.toString(), control);
            }
        };
        QWidget* const window = document().window();
        for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
            add(button->shortcut(), button);
        }
        for (QLabel* label : window->findChildren<QLabel*>()) {
            if (label->buddy()) {
                add(QKeySequence::mnemonic(label->text()), label->buddy());
            }
        }
        for (QShortcut* shortcut : window->findChildren<QShortcut*>()) {
            add(shortcut->key(), qobject_cast<QWidget*>(shortcut->parent()));
        }
        for (QMenu* menu : document().window()->menuBar()->findChildren<QMenu*>()) {
            add(QKeySequence::mnemonic(menu->title()), menu);
        }
        return found;
    }
};

TEST_F(AltLetterTest, EveryFieldAndButtonHasOneAndNoneIsGivenTwice) {
    const auto all = letters();
    for (QWidget* control : buttonsAndFields()) {
        EXPECT_EQ(1, all.keys(control).size())
            << control->objectName().toStdString() << " " << control->accessibleName().toStdString();
    }
    for (const QString& keys : all.uniqueKeys()) {
        EXPECT_EQ(1, all.count(keys)) << keys.toStdString();
    }
}

TEST_F(AltLetterTest, FieldsAreReachedAndButtonsPressedByThem) {
    openFile("a.mp4", text4("TALB", "Film"));
    const auto all = letters();
    for (QWidget* control : buttonsAndFields()) {
        if (all.keys(control).isEmpty()) {
            continue; // the test above complains
        }
        const auto keys = QKeySequence(all.keys(control).constFirst())[0];
        QWidget& start = widget<QWidget>("tbl_mediaFiles");
        start.setFocus();
        auto* const button = qobject_cast<QAbstractButton*>(control);
        control->setEnabled(true);
        if (button) {
            const QSignalBlocker nothingHappens(button);
            QTest::keyClick(&start, keys.key(), keys.keyboardModifiers());
            EXPECT_TRUE(button->isDown()) << keys.key();
            EXPECT_TRUE(waitUntil([&] { return !button->isDown(); })) << keys.key();
        } else {
            QTest::keyClick(&start, keys.key(), keys.keyboardModifiers());
            QWidget* const reached = QApplication::focusWidget();
            EXPECT_TRUE(reached == control || control->isAncestorOf(reached))
                << control->objectName().toStdString();
        }
    }
}

TEST_F(AltLetterTest, LettersThatNoCaptionShowsAreInTheTips) {
    const auto all = letters();
    for (const char* name : {"entry_artist", "entry_album", "combo_search", "btn_formFill"}) {
        QWidget& control = widget<QWidget>(name);
        ASSERT_EQ(1, all.keys(&control).size()) << name;
        EXPECT_TRUE(control.toolTip().endsWith("(" + all.keys(&control).constFirst() + ")")) << name;
    }
    EXPECT_TRUE(playButton()->toolTip().endsWith("(" + all.keys(playButton()).value(0) + ")"));
}

} // namespace
} // namespace velmora
