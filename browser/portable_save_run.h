#pragma once

#include "model/portable_save.h"

#include <atomic>

class QWidget;

namespace velmora {

/** Runs saves beside the main thread, one at a time. A save that takes longer than a moment shows its
   progress in a sheet with a button that cancels it; meanwhile nothing else can be done in the window. */
class PortableSaveRun {
public:
    PortableSaveRun() = default;

    /** Runs SAVE, of the file called NAME, to its end; the sheet belongs to WINDOW. Not while another one
       runs. */
    [[nodiscard]] PortableSaveResult run(const PortableSave& save, const QString& name, QWidget* window);

    [[nodiscard]] bool isRunning() const { return running_; }
    /** The save that runs, if one does, is to end soon, with the file as it was. */
    void cancel() { cancelled_ = true; }

private:
    bool running_ = false;
    std::atomic<bool> cancelled_ = false;
};

} // namespace velmora
