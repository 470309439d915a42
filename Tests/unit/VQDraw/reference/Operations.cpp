// SPDX-License-Identifier: MIT
#include "Operations.h"

#include <iterator>

namespace vq::reference {

std::vector<Operation> everyOperation()
{
    std::vector<Operation> result;
    for (const auto family : {blockOperations, blendOperations, twoImageOperations, toneOperations, smoothOperations,
                              neighbourhoodOperations, colourExchangeOperations})
        std::ranges::move(family(), std::back_inserter(result));
    return result;
}

} // namespace vq::reference
