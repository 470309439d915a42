// SPDX-License-Identifier: MIT
/// @file
/// The examples that the standard's authors publish for SHA-256.
#include "support/Sha256.h"

#include <gtest/gtest.h>

namespace vq::test {
namespace {

std::string digestOf(const std::string& message)
{
    return sha256(std::vector<std::uint8_t>(message.begin(), message.end()));
}

TEST(Sha256, GivesThePublishedDigests)
{
    EXPECT_EQ(digestOf(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(digestOf("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(digestOf("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(digestOf(std::string(1000000, 'a')), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Sha256, AgreesOnBothSidesOfABlocksEnd)
{
    // Printed by coreutils' sha256sum for so many zero bytes.
    EXPECT_EQ(digestOf(std::string(55, '\0')), "02779466cdec163811d078815c633f21901413081449002f24aa3e80f0b88ef7");
    EXPECT_EQ(digestOf(std::string(56, '\0')), "d4817aa5497628e7c77e6b606107042bbba3130888c5f47a375e6179be789fbb");
    EXPECT_EQ(digestOf(std::string(64, '\0')), "f5a5fd42d16a20302798ef6ed309979b43003d2320d9f0e8ea9831a92759fb4b");
}

} // namespace
} // namespace vq::test
