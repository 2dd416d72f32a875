// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Deflater.h"

#include <isa-l/crc.h>
#include <isa-l/igzip_lib.h>

#include <array>

namespace {

class IsalDeflater final : public Deflater {
public:
    IsalDeflater() { IsalDeflater::restart(); }

    void restart() override
    {
        isal_deflate_init(&m_stream);
        m_stream.level = 1;
        m_stream.level_buf = m_work.data();
        m_stream.level_buf_size = std::uint32_t(m_work.size());
        m_stream.gzip_flag = IGZIP_ZLIB;
    }

    Progress deflate(
        std::span<const std::uint8_t> input, std::span<std::uint8_t> output, Input kind) override
    {
        m_stream.next_in = const_cast<std::uint8_t*>(input.data()); // Only read.
        m_stream.avail_in = std::uint32_t(input.size());
        m_stream.next_out = output.data();
        m_stream.avail_out = std::uint32_t(output.size());
        m_stream.end_of_stream = kind == Input::Last;
        isal_deflate(&m_stream);
        return {input.size() - m_stream.avail_in, output.size() - m_stream.avail_out,
            m_stream.internal_state.state == ZSTATE_END};
    }

private:
    isal_zstream m_stream;
    std::array<std::uint8_t, ISAL_DEF_LVL1_DEFAULT> m_work;
};

std::uint32_t crc(std::uint32_t before, std::span<const std::uint8_t> bytes)
{
    return crc32_gzip_refl(before, bytes.data(), bytes.size());
}

} // namespace

const Compression* isalCompression()
{
    // Its plain C code, taken on older processors, is no match for zlib.
    static const bool fast = __builtin_cpu_supports("sse4.2") && __builtin_cpu_supports("pclmul");
    static constexpr Compression compression {
        // Not make_unique, which would first clear a third of a megabyte.
        [] { return std::unique_ptr<Deflater>(new IsalDeflater); }, crc};
    return fast ? &compression : nullptr;
}
