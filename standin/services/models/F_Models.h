#pragma once

#include "module/ui/controls/Button.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/input/TextSorting.h"
#include "standin/services/AskingForm.h"
#include "standin/services/models/ModelStore.h"

#include <functional>
#include <string>
#include <vector>

namespace tellurix::standin {

/// The models of one category: the user sees their lines, keeps the present lines under a name, gives a
/// model another name and deletes it. Everything is written at once; replacing and deleting ask before.
class F_Models final : public AskingForm {
public:
    /// A text of the services' own.
    using Texts = std::function<std::string(std::string_view key)>;

    /// @param statistics texts of the statistics by their position
    /// @param present the lines that can be kept as a model
    /// @param current name of the model to start with
    F_Models(ui::Display& display, ModelStore store, std::vector<std::string> statistics,
             host::CalculationLines present, Texts texts, const std::string& current);

    /// The model that the present lines were kept under last, 0 for none.
    std::int32_t saved() const { return saved_; }

private:
    bool changed() const override { return txtName.touched(); }
    void connect();
    /// Reads the models anew and goes to one of them, or to the first.
    void load(const std::string& name);
    void showModel();
    const ModelStore::Model* current() const;
    /// What is typed as a name; empty when there is none, and the user has been told.
    std::string typedName();
    void save();
    void rename();
    void remove();
    bool confirmed(std::string_view key, const std::string& name);
    void say(std::string_view key, const std::string& name);

    ModelStore store_;
    std::vector<std::string> statistics_;
    host::CalculationLines present_;
    Texts texts_;
    std::vector<ModelStore::Model> models_;
    std::int32_t saved_ = 0;

    ui::Frame frmModels{*this, "frmModels", "Modelle"};
    ui::Frame frmLines{*this, "frmLines", "Zeilen des Modells"};
    ui::Grid grdModels{*this, "grdModels", 12};
    ui::TextSorting sorting_{grdModels, base::Locale::german()};
    ui::Grid grdLines{*this, "grdLines", 12};
    ui::Label lblName{*this, "lblName", "&Name"};
    ui::TextBox txtName{*this, "txtName", 40};
    ui::Button btnSave{*this, "btnSave", "Zeilen &speichern"};
    ui::Button btnRename{*this, "btnRename", "&Umbenennen"};
    ui::Button btnDelete{*this, "btnDelete", "&Löschen"};
    ui::Button btnClose{*this, "btnClose", "S&chließen"};
};

} // namespace tellurix::standin
