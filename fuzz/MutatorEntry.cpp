// SPDX-License-Identifier: GPL-2.0-or-later

// Lets libFuzzer mutate drawings group by group.

#include "fuzz/GroupMutator.h"

#include <cstdint>
#include <cstring>

extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t maxSize);

namespace
{

// One mutation in so many changes bytes, not groups.
constexpr unsigned byteMutationEvery = 8;
constexpr unsigned mostMutations = 4;

std::string_view viewOf(const uint8_t* data, size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

size_t store(const std::string& text, uint8_t* data, size_t maxSize)
{
    const size_t size = text.size() < maxSize ? text.size() : maxSize;
    std::memcpy(data, text.data(), size);
    return size;
}

} // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t maxSize,
                                          unsigned int seed)
{
    if (seed % byteMutationEvery == 0)
        return LLVMFuzzerMutate(data, size, maxSize);

    dxffuzz::GroupMutator mutator(seed);
    dxffuzz::Groups groups = dxffuzz::groupsOf(viewOf(data, size));
    for (unsigned i = 0; i <= seed / byteMutationEvery % mostMutations; ++i)
        mutator.mutate(groups);
    return store(dxffuzz::textOf(groups), data, maxSize);
}

extern "C" size_t LLVMFuzzerCustomCrossOver(const uint8_t* head, size_t headSize,
                                            const uint8_t* tail, size_t tailSize, uint8_t* out,
                                            size_t maxOutSize, unsigned int seed)
{
    dxffuzz::GroupMutator mutator(seed);
    const dxffuzz::Groups crossed = mutator.cross(dxffuzz::groupsOf(viewOf(head, headSize)),
                                                  dxffuzz::groupsOf(viewOf(tail, tailSize)));
    return store(dxffuzz::textOf(crossed), out, maxOutSize);
}
