// Masks of any kind: texts laid out over them, taken out of them, and typed into.
// The input: texts that end at a zero: mask and text; what is left are keystrokes.
#include "fuzz_input.h"

#include "typed/masks.h"

namespace {

void Convert(const std::string& text, const std::string& mask)
{
    FuzzBuffer exactText(text, 0), exactMask(mask, 0);
    for (int strip = 0; strip < 2; ++strip) {
        for (const size_t size : { size_t{ 1 }, size_t{ 2 }, size_t{ 7 }, text.size() + 1, mask.size() + 1 }) {
            FuzzBuffer out(size);
            const int  length = MaskToString(exactText.Get(), exactMask.Get(), out.Get(), out.Size(), strip);
            Require(length >= 0 && length < out.Size() && out.Get()[length] == 0);
        }
    }
}

// A text that was laid out stays the same when it is laid out again.
void ConvertAgain(const std::string& text, const std::string& mask)
{
    FuzzBuffer once(mask.size() + 1), bare(mask.size() + 1);
    MaskToString(text.c_str(), mask.c_str(), once.Get(), once.Size(), 0);
    const int length = MaskToString(once.Get(), mask.c_str(), bare.Get(), bare.Size(), 1);
    Require(length <= static_cast<int>(once.Text().size()) || mask.empty());
}

// The top bit of a key chooses the delete key.
void Type(const std::string& text, const std::string& mask, FuzzInput keys)
{
    FuzzBuffer exactMask(mask, 0);
    FuzzBuffer room(text, 1);
    int        caret = 0;
    for (; !keys.IsEmpty() && room.Text() == text; ++caret) {
        const BYTE key = keys.Byte();
        int        advance = 0, repaint = 0;
        if (key & 0x80) {
            const int code = MaskCharDelete(room.Get(), exactMask.Get(), caret - 1);
            Require(code == 0 || code == 2);
        } else {
            const int refused =
                MaskCharFilter(room.Get(), exactMask.Get(), caret, static_cast<char>(key), &advance, &repaint);
            Require(advance == repaint && advance >= 0 && (!refused || advance == 0));
        }
        Require(room.Text().size() <= text.size() + 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const BYTE* data, size_t size)
{
    FuzzInput         input = { data, data + size };
    const std::string mask = input.Text();
    const std::string text = input.Text();
    Convert(text, mask);
    ConvertAgain(text, mask);
    Type(text, mask, input);
    return 0;
}
