#include "tests/model/ModelHost.h"

// The model that is brought back to where it was.

namespace model {

namespace {

//! Copies of what the pointers point to.
template <typename Record>
std::vector<std::shared_ptr<Record>> copiesOf(const std::vector<std::shared_ptr<Record>> &records)
{
    std::vector<std::shared_ptr<Record>> copies;
    copies.reserve(records.size());
    for (const auto &record : records)
        copies.push_back(std::make_shared<Record>(*record));
    return copies;
}

} // namespace

ModelHost::Moment ModelHost::moment() const
{
    Moment moment{m_identifiers, *inHand(), copiesOf(m_rules->taras), copiesOf(m_rules->goods)};
    moment.receipt.lines = copiesOf(moment.receipt.lines);
    return moment;
}

void ModelHost::returnTo(const Moment &moment)
{
    m_identifiers = moment.identifiers;
    *inHand() = moment.receipt;
    inHand()->lines = copiesOf(moment.receipt.lines);
    m_rules->taras = copiesOf(moment.taras);
    m_rules->goods = copiesOf(moment.goods);
}

} // namespace model
