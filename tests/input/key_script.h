// Scripts of typed keys: characters as they stand, and named keys in braces, with their modifiers: "ab{Shift+Left}".
#pragma once

// Types a script key by key; each has arrived before the next one goes out.
void Type(const char* script);
// Types it faster than any program can follow: all keys wait before the first one is dispatched.
void TypeAhead(const char* script);
