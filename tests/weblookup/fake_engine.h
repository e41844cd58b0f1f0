#pragma once

#include "platform/web/web_view.h"

#include <QList>

namespace velmora::test {

/** Stands in for the browser engine: notes what it is asked and lets a test say what the page does. */
class FakeEngine : public WebEngine {
public:
    struct State {
        int made = 0;
        QList<QUrl> loaded;
        bool canGoBack = false;
        int wentBack = 0;
        /** The document's text, handed out at once; with none the page keeps its taker waiting. */
        std::optional<QString> snapshot;
        SnapshotTaker waitingTaker;
        int snapshotsAsked = 0;
        WebEngineListener* listener = nullptr;
    };

    FakeEngine(State& state, WebEngineListener& listener) : state_(state) {
        ++state_.made;
        state_.listener = &listener;
    }
    ~FakeEngine() override { state_.listener = nullptr; }

    static WebView::EngineMaker maker(State& state) {
        return [&state](WebEngineListener& listener, QWidget*) {
            return std::make_unique<FakeEngine>(state, listener);
        };
    }

    QWidget* widget() override { return nullptr; }
    void load(const QUrl& url) override { state_.loaded.append(url); }
    bool canGoBack() const override { return state_.canGoBack; }
    void goBack() override { ++state_.wentBack; }
    void setLeaveTimeLimit(std::chrono::milliseconds) override {}
    void takeSnapshot(SnapshotTaker take) override {
        ++state_.snapshotsAsked;
        if (state_.snapshot) {
            take(*state_.snapshot);
        } else {
            state_.waitingTaker = std::move(take);
        }
    }

private:
    State& state_;
};

/** The text of a page whose title is TITLE and whose poster has the address SRC. */
inline QString snapshotText(const QString& title, const QString& src = {}) {
    return QStringLiteral(
               R"({"url":"http://x/","nodes":[[-1,0,"HTML",null,1],[0,0,"TITLE",null,1],[1,1,"#text","%1"],)"
               R"([0,2,"A",null,1,"",["name","poster"],"poster"],[3,5,"IMG",null,1,"",[],"","%2"]]})")
        .arg(title, src);
}

} // namespace velmora::test
