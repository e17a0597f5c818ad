// Splits a text at its delimiters, one field a call.
#include <widgets/widgets.h>

namespace {

constexpr int bufferSize = 256;
char          gField[bufferSize];

// Bounded: what doesn't fit is dropped, and the field is read to its end all the same.
void Append(int* length, char ch)
{
    if (*length < bufferSize - 1) {
        gField[(*length)++] = ch;
    }
}

} // namespace

char* WINAPI StringParse(const char* text, char delimiter, char escape, char skip, char replace, char** outNext)
{
    int         length = 0;
    const char* at = text ? text : "";
    for (; *at; ++at) {
        // skip counts before escape.
        if (*at == skip) {
            if (replace) {
                Append(&length, replace);
            }
        } else if (*at == escape) {
            if (!at[1]) {
                ++at;
                break;
            }
            Append(&length, *++at);
        } else if (*at == delimiter) {
            break;
        } else {
            Append(&length, *at);
        }
    }
    if (outNext) {
        *outNext = const_cast<char*>(*at ? at + 1 : at);
    }
    gField[length] = 0;
    return gField;
}
