// SPDX-License-Identifier: LGPL-2.1-or-later
// Telegram parsing speed: protocol-header texts parsed per second (the library
// against the stream-based reading it reproduces), data replies decoded per
// second per record kind, and Mel checksums per second.
#include "telegrams/melencoderdecoder.h"
#include "telegrams/tamarinddataheader.h"
#include "telegrams/tamarindprotocolheader.h"

#include "streamreference.h"

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

namespace {

// A pool of different header texts, so that the parser cannot lean on one input.
const std::vector<std::string> &headerTexts()
{
    static const std::vector<std::string> texts = [] {
        std::mt19937 random(42);
        std::vector<std::string> pool;
        for (int i = 0; i < 1024; ++i) {
            Utils::TamarindProtocolHeader header;
            header.vSetStart(uint8_t(random()));
            header.vSetVersion(uint8_t(random()));
            header.vSetMessageId(uint8_t(random()));
            header.vSetProtocolLenght(uint16_t(random()));
            header.vSetMessageType(uint8_t(random()));
            header.vSetAdress(uint32_t(random()));
            pool.push_back(header.oToString());
        }
        return pool;
    }();
    return texts;
}

void BM_ProtocolHeaderParse(benchmark::State &state)
{
    const auto &texts = headerTexts();
    Utils::TamarindProtocolHeader header;
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(header.bSetFromString(texts[i++ & 1023]));
        benchmark::DoNotOptimize(header.u32Adress());
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ProtocolHeaderParse);

void BM_ProtocolHeaderParseStreamReference(benchmark::State &state)
{
    const auto &texts = headerTexts();
    Utils::TamarindProtocolHeader header;
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(StreamReference::setFromString(header, texts[i++ & 1023]));
        benchmark::DoNotOptimize(header.u32Adress());
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ProtocolHeaderParseStreamReference);

void BM_ProtocolHeaderToString(benchmark::State &state)
{
    Utils::TamarindProtocolHeader header(headerTexts().front());
    for (auto _ : state)
        benchmark::DoNotOptimize(header.oToString());
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ProtocolHeaderToString);

std::string reply(uint8_t command0, uint8_t command1, uint32_t dataLength, std::size_t payload)
{
    Utils::TamarindDataHeader header;
    header.vSetCommand0(command0);
    header.vSetCommand1(command1);
    header.vSetDataLenght(dataLength);
    std::string bytes = header.encode().substr(0, Utils::TamarindDataHeader::nPayloadOffset);
    for (std::size_t i = 0; i < payload; ++i)
        bytes.push_back(char(i * 7));
    return bytes;
}

// Argument: 0 process data, 1 OY1P process data, 2 parameter configuration,
// 3 full parameter read-out (hex dump of a 1024-byte reply).
void BM_DataReplyDecode(benchmark::State &state)
{
    static const std::string replies[] = { reply(10, 0, 32, 32), reply(10, 0, 36, 36), reply(10, 7, 96, 96),
                                           reply(10, 1, 996, 996) };
    const std::string &bytes = replies[state.range(0)];
    Utils::TamarindDataHeader header;
    for (auto _ : state) {
        header.decode(bytes);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations());
    state.SetBytesProcessed(state.iterations() * int64_t(bytes.size()));
}
BENCHMARK(BM_DataReplyDecode)->DenseRange(0, 3);

void BM_DataRequestEncode(benchmark::State &state)
{
    Utils::TamarindDataHeader header;
    header.vSetCommand0(10);
    header.vSetCommand1(7);
    for (auto _ : state)
        benchmark::DoNotOptimize(header.encode());
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_DataRequestEncode);

void BM_MelChecksum(benchmark::State &state)
{
    const std::string text(std::size_t(state.range(0)), 'A');
    Utils::MelEncoderDecoder codec;
    for (auto _ : state)
        benchmark::DoNotOptimize(codec.oCalculateChecksum(text));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_MelChecksum)->Arg(16)->Arg(228);

void BM_MelChecksumStreamReference(benchmark::State &state)
{
    const std::string text(std::size_t(state.range(0)), 'A');
    for (auto _ : state)
        benchmark::DoNotOptimize(StreamReference::melChecksum(text));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_MelChecksumStreamReference)->Arg(16)->Arg(228);

} // namespace

BENCHMARK_MAIN();
