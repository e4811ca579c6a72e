#ifndef HOST_TR_H
#define HOST_TR_H

#include <shopline/Talk.h>

namespace tr {

#if defined(SHOPLINE_BREAKS_Types_Message)
class Tr : public shopline::Phrase
{
public:
    using shopline::Phrase::Phrase;
};
#else
using Tr = shopline::Phrase;
#endif

} // namespace tr

#endif // HOST_TR_H
