#pragma once

#include "weblookup/TagWebBrowser.h"
#include "weblookup/form_fill_info.h"
#include "weblookup/form_fill_receiver.h"

#include <QPushButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace velmora::test {

/** Keeps a copy of every record that it gets. */
class Receiver : public FormFillReceiver {
public:
    void fillFields(const FormFillInfo* info) override { records.push_back(*info); }
    std::vector<FormFillInfo> records;
};

/** A window with the panel's controls, laid out by hand. The panel is a child of the window. */
class PanelWindow : public QWidget {
public:
    explicit PanelWindow(WebView* view) : panel(new TagWebBrowser(this)) {
        auto* const layout = new QVBoxLayout(this);
        const auto place = [layout](auto* widget) {
            layout->addWidget(widget);
            return widget;
        };
        panel->combo_search = place(new QComboBox);
        panel->entry_search = place(new QLineEdit);
        panel->btn_search = place(new QPushButton(QStringLiteral("Search")));
        panel->btn_searchBack = place(new QPushButton(QStringLiteral("Back")));
        panel->btn_formFill = place(new QPushButton(QStringLiteral("Fill Form")));
        panel->progress_search = place(new BusyIndicator);
        panel->lbl_movieName = place(new QLabel(QStringLiteral("Title")));
        panel->webview_search = place(view);
        layout->setStretchFactor(view, 1);
        panel->btn_searchBack->setEnabled(false);
        panel->controller = &receiver;
        panel->awakeFromNib();
        resize(800, 600);
    }

    Receiver receiver;
    TagWebBrowser* panel;
};

} // namespace velmora::test
