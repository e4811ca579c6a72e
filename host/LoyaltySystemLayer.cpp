#include "host/LoyaltySystemLayer.h"

template <>
SingletonSlot<LoyaltySystemLayer> Singleton<LoyaltySystemLayer>::instance{};

LoyaltySystemLayer::LoyaltySystemLayer() = default;
LoyaltySystemLayer::~LoyaltySystemLayer() = default;

void LoyaltySystemLayer::updateDocument(const QSharedPointer<AbstractDocument> &document)
{
    Q_UNUSED(document)
}
