#pragma once

#include <QFrame>
#include <QList>
#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>

class QPushButton;

namespace velmora {

/** Something that the user is told without being asked. */
struct Notice {
    enum class Kind { Information, Warning };
    /** What it is about. Of each there is one notice at a time. */
    enum class Topic { Save, UnsavedEdits, OtherPrograms, FolderImage, FilledFields, ShownCover, NotAdded };
    struct Action {
        QString caption;
        QString toolTip;
        QString symbol; ///< a name of platform/symbol.h
        std::function<void()> act;
    };

    Kind kind = Kind::Information;
    QString text;                       ///< plain; one line in a window that is not small
    QList<Action> actions;              ///< two at most
    std::chrono::milliseconds shown{0}; ///< how long; 0: until it is closed or another takes its place
    Topic topic = Topic::Save;
};

/** NAME, a file's, as a notice has room for it: on one line, and only its beginning and end where it is
   long. */
[[nodiscard]] QString shortened(const QString& name);

/** A line above the form that says what happened and offers what can be done about it. It takes neither the
   keyboard nor the mouse from anybody; F6 goes to its first button, and Escape in it closes it. Unseen at
   first. */
class NoticeBar : public QFrame {
    Q_OBJECT
public:
    explicit NoticeBar(QWidget* parent = nullptr);

    /** Shows NOTICE in front of all others and in place of the one of its topic, and tells assistive
       technologies of it. When it goes, the one behind it comes up. */
    void show(const Notice& notice);
    /** Shows NOTICE once those that there are have gone. */
    void showBehind(const Notice& notice);
    /** Nothing is to be told of TOPIC any more. */
    void withdraw(Notice::Topic topic);
    /** Nothing is to be told any more. */
    void clear();

    [[nodiscard]] bool holdsNotice() const { return !notices_.isEmpty(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showLast();
    void removeRow();
    void dismiss();
    void makeRow(const Notice& notice);
    QPushButton* addButton(const QString& name, const Notice::Action& action);
    [[nodiscard]] QWidget* controlInFront();
    void announce();
    [[nodiscard]] bool hasKeyboard() const;

    QList<Notice> notices_;  ///< the last one is shown
    QWidget* row_ = nullptr; ///< the notice that is shown; there is nothing in the bar without one
    QPushButton* first_ = nullptr;
    QTimer timer_;
};

} // namespace velmora
