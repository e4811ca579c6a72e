#include "host/DocumentLogic.h"

template <>
QSharedPointer<DocumentLogic> MockFactory<DocumentLogic>::mocked{};

DocumentLogic::DocumentLogic() = default;
DocumentLogic::~DocumentLogic() = default;

bool DocumentLogic::stornoPosition(const control::Action &action)
{
    Q_UNUSED(action)
    return false;
}
