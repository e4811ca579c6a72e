#include "window/look/ShownReceipt.h"

#include "till/register/Register.h"

#include <utility>

namespace till {

ShownReceipt::ShownReceipt(const ReceiptRecord &record, const QString &pluginId,
                           TaraControl control)
    : ShownReceipt(record, TaraState::read(record.pluginData, pluginId), control)
{
}

ShownReceipt::ShownReceipt(const ReceiptRecord &record, TaraState taras, TaraControl control)
    : m_receipt(record)
    , m_taras(std::move(taras))
    , m_index(m_taras)
    , m_control(control)
{
    for (const LineRecord &line : record.lines) {
        if (line.article.taraMode == Tmc::PackagingGoods)
            m_ordinals.insert(line.posnum, static_cast<int>(m_ordinals.size()));
    }
}

std::shared_ptr<const ShownReceipt> ShownReceipt::of(const Register &cashRegister)
{
    const auto receipt = cashRegister.receipt();
    if (!receipt)
        return nullptr;
    return std::make_shared<const ShownReceipt>(receipt->record(), cashRegister.taraState(),
                                                cashRegister.taraControl());
}

std::optional<int> ShownReceipt::goodsOrdinal(int posnum) const
{
    const auto found = m_ordinals.constFind(posnum);
    return found == m_ordinals.cend() ? std::nullopt : std::optional(*found);
}

} // namespace till
