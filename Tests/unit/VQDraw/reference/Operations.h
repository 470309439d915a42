// SPDX-License-Identifier: MIT
#pragma once

#include "Comparison.h"

#include <vector>

namespace vq::reference {

/// The operations that have a reference, with every way in.
std::vector<Operation> blockOperations();
std::vector<Operation> blendOperations();
std::vector<Operation> twoImageOperations();
std::vector<Operation> toneOperations();
std::vector<Operation> smoothOperations();
std::vector<Operation> neighbourhoodOperations();
std::vector<Operation> colourExchangeOperations();

std::vector<Operation> everyOperation();

} // namespace vq::reference
