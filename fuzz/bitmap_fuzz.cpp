// Any bytes as a bitmap file and as a bitmap resource. What passes the checks must be there to its last pixel.
#include "fuzz_input.h"

#include "button/picture_dib.h"

namespace {

volatile unsigned gSum; // what is read has to be read

// Takes run-length data apart in its own way; each pixel has to lie in the picture.
void CheckRuns(const BYTE* at, const DibInfo& info)
{
    const bool fourBits = info.compression == 2;
    int        x = 0;
    int        y = 0;
    for (;;) {
        const int first = *at++;
        const int second = *at++;
        if (first > 0 || second > 2) {
            const int count = first > 0 ? first : second;
            x += count;
            Require(x <= info.width && y < info.height);
            const int bytes = fourBits ? (count + 1) / 2 : count;
            at += first > 0 ? 0 : bytes + bytes % 2;
        } else if (second == 0) {
            x = 0;
            ++y;
        } else if (second == 1) {
            return;
        } else {
            x += *at++;
            y += *at++;
        }
    }
}

void CheckPixels(const BYTE* dib, size_t size, const DibInfo& info)
{
    Require(info.width > 0 && info.height > 0 && info.pixelOffset <= size);
    unsigned sum = 0;
    for (DWORD i = 0; i < info.colors; ++i) {
        sum += DibColor(dib, info, i);
    }
    if (info.compression == 1 || info.compression == 2) {
        CheckRuns(dib + info.pixelOffset, info);
        return;
    }
    const unsigned long long bytes = DibRowBytes(info.width, info.bits) * static_cast<unsigned>(info.height);
    Require(bytes <= size - info.pixelOffset);
    for (size_t i = 0; i < bytes; ++i) {
        sum += dib[info.pixelOffset + i];
    }
    gSum = sum;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const BYTE* bytes, size_t size)
{
    DibInfo info = {};
    if (ReadBitmapFile(bytes, size, &info)) {
        Require(info.headerSize == 12 || info.headerSize == 40);
        CheckPixels(bytes + bitmapFileHeaderSize, size - bitmapFileHeaderSize, info);
    }
    if (ReadDib(bytes, size, DibSource::Resource, &info)) {
        CheckPixels(bytes, size, info);
    }
    return 0;
}
