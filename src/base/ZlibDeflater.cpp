// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Deflater.h"

#include <zlib.h>

#include <new>

namespace {

class ZlibDeflater final : public Deflater {
public:
    ZlibDeflater()
    {
        if (deflateInit(&m_stream, 1) != Z_OK)
            throw std::bad_alloc();
    }
    ZlibDeflater(const ZlibDeflater&) = delete;
    ZlibDeflater& operator=(const ZlibDeflater&) = delete;
    ~ZlibDeflater() override { deflateEnd(&m_stream); }

    void restart() override { deflateReset(&m_stream); }

    Progress deflate(
        std::span<const std::uint8_t> input, std::span<std::uint8_t> output, Input kind) override
    {
        m_stream.next_in
            = const_cast<Bytef*>(input.data()); // Read only; zlib's type predates const.
        m_stream.avail_in = uInt(input.size());
        m_stream.next_out = output.data();
        m_stream.avail_out = uInt(output.size());
        const int state = ::deflate(&m_stream, kind == Input::Last ? Z_FINISH : Z_NO_FLUSH);
        return {input.size() - m_stream.avail_in, output.size() - m_stream.avail_out,
            state == Z_STREAM_END};
    }

private:
    z_stream m_stream {};
};

} // namespace

const Compression& zlibCompression()
{
    static constexpr Compression compression {
        [] { return std::unique_ptr<Deflater>(std::make_unique<ZlibDeflater>()); },
        [](std::uint32_t before, std::span<const std::uint8_t> bytes) {
            return std::uint32_t(crc32_z(before, bytes.data(), bytes.size()));
        }};
    return compression;
}
