#pragma once

namespace velmora {

struct FormFillInfo;

/** Whoever takes the result of a form fill: the editor that shows it. */
class FormFillReceiver {
public:
    virtual ~FormFillReceiver() = default;

    /** Copies INFO's slots into the form. INFO may be null, which changes nothing, and lives only during the
     * call. */
    virtual void fillFields(const FormFillInfo* info) = 0;
};

} // namespace velmora
