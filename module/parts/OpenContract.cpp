#include "module/parts/OpenContract.h"

#include "module/base/Refused.h"
#include "module/base/StatementText.h"

namespace tellurix::parts {

void OpenContract::requirePresent() const {
    base::StatementText query{"SELECT ID_VERTRAG FROM VERTRAEGE WHERE ID_VERTRAG = "};
    if (connection().open(query.number(id).text())->atEnd())
        throw base::Refused{base::OwnText::contractIsGone};
}

} // namespace tellurix::parts
