#pragma once

#include "platform/busy_indicator.h"
#include "weblookup/TagWebBrowser.h"
#include "weblookup/detail/address_line.h"
#include "weblookup/form_fill_info.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace velmora::test {

/** Keeps a copy of every record that it gets. */
struct Receiver {
    std::vector<FormFillInfo> records;
};

/** A window that holds the panel alone, with the panel's controls by their names. */
class PanelWindow : public QWidget {
public:
    PanelWindow() : panel(new TagWebBrowser(this)) {
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(panel);
        connect(panel, &TagWebBrowser::formFillInfoReady, this,
                [this](const FormFillInfo* info) { receiver.records.push_back(*info); });
        resize(800, 600);
    }

    template <class Widget>
    [[nodiscard]] Widget* named(const char* name) {
        auto* const found = panel->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(nullptr, found) << name;
        return found;
    }

    Receiver receiver;
    TagWebBrowser* panel;
    WebView* webview_search = named<WebView>("webview_search");
    QComboBox* combo_search = named<QComboBox>("combo_search");
    QLineEdit* entry_search = named<QLineEdit>("entry_search");
    QPushButton* btn_search = named<QPushButton>("btn_search");
    QPushButton* btn_searchBack = named<QPushButton>("btn_searchBack");
    QPushButton* btn_formFill = named<QPushButton>("btn_formFill");
    AddressLine* entry_address = named<AddressLine>("entry_address");
    QWidget* box_address = named<QWidget>("box_address");
    QWidget* box_coverWait = named<QWidget>("box_coverWait");
    QLabel* lbl_coverWait = named<QLabel>("lbl_coverWait");
    QPushButton* btn_cancelCover = named<QPushButton>("btn_cancelCover");
    BusyIndicator* progress_search = named<BusyIndicator>("progress_search");
};

} // namespace velmora::test
