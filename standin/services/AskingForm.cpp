#include "standin/services/AskingForm.h"

#include "module/base/own_text.h"
#include "module/parts/questions.h"

namespace tellurix::standin {

void AskingForm::leave() {
    leaving_ = true;
    unload();
    leaving_ = false;
}

bool AskingForm::mayLose() const {
    return !changed() || parts::confirmed(display_, base::ownText(base::OwnText::discardChanges, language()));
}

} // namespace tellurix::standin
