#pragma once

#include "common/LookupBox.h"
#include "host/services.h"
#include "ui/Button.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/Layout.h"
#include "ui/ProgressBar.h"
#include "ui/TextBox.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tellurix::contract {

/// The frame of the contract editor in which the lines of another contract are taken over.
class TakeOverFrame {
public:
    /// @param contract the contract that gets the lines
    /// @param tookOver called when lines were added
    TakeOverFrame(ui::Form& form, host::HostServices& services, const host::TlxVar& session,
                  const std::int32_t& contract, std::function<void()> tookOver);

    ui::Layout layout();
    /// Forgets the source that was chosen.
    void clear();

private:
    void pickSource();
    void takeOver();
    void refuse(const std::string& why);
    /// Whether the source is of the contract's own type, or the user wants its lines all the same.
    bool acceptsTypeOf(std::int32_t source);

    host::HostServices& services_;
    const host::TlxVar& session_;
    const std::int32_t& contract_;
    std::function<void()> tookOver_;

    ui::Frame frmUbernehmen;
    ui::Label lblVertrag;
    ui::TextBox txtVertrag;
    ui::Label lblTypeOfVertrag;
    ui::TextBox txtTypeOfVertrag;
    ui::Button btnUbernehmen;
    ui::ProgressBar ProgressBar1;

    common::LookupBox source_;
    common::LookupBox type_; ///< the contract type that the choice of the source is limited to
};

} // namespace tellurix::contract
