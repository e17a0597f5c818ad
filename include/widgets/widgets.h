/**
 * widgets.h - everything a host of widgets.dll needs, for C11 and C++17.
 *
 * Conventions that hold unless a docstring says otherwise:
 * - All texts are zero-terminated and single-byte, in the ANSI code page.
 * - Sizes of buffers are in bytes and count the terminating zero.
 * - Colours are COLORREF values; positions and sizes on the screen are pixels.
 * - The library is for the thread that owns the controls: nothing is locked.
 * - Failure is told by the result alone (null, 0 or -1), nothing is raised and nothing is logged.
 * - Records are made and freed by the functions named with them; whoever makes a record owns it.
 */
#ifndef WIDGETS_WIDGETS_H
#define WIDGETS_WIDGETS_H

#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Library and diagnostics */

/**
 * Prepares the library: common controls, cursors, international settings, window classes.
 *
 * The DLL calls it when a process loads it, so a host need not. Only the first call does anything.
 */
void WINAPI WidgetsInit(void);

/**
 * Registers a window class from the fields of a WNDCLASS, given in the order of that structure.
 *
 * @param style, wndProc, clsExtra, wndExtra, instance, icon, cursor, background, menuName, className  As in WNDCLASS.
 * @return The class atom, or 0 if RegisterClassA refused.
 */
int WINAPI RegisterControl(UINT style, WNDPROC wndProc, int clsExtra, int wndExtra, HINSTANCE instance, HICON icon,
                           HCURSOR cursor, HBRUSH background, const char* menuName, const char* className);

/**
 * Puts a window procedure in place of the window's own.
 *
 * @param hwnd     The window.
 * @param wndProc  The new procedure.
 * @return The procedure that was there before; null if it is wndProc already (nothing changes then).
 */
WNDPROC WINAPI SubclassWW(HWND hwnd, WNDPROC wndProc);

/** Gives the name of the library's help file: the constant text "Widgets.hlp". */
const char* WINAPI GetHelpName(void);

/**
 * Formats a line and hands it to the debugger (OutputDebugStringA), without adding a line end.
 *
 * @param format  A format of wvsprintfA; the arguments follow. Text past 255 characters is cut.
 */
void __cdecl WriteDebug(const char* format, ...);

/** Ends the process through abort(). It prints nothing and does not return. */
void WINAPI AssertFailedLine(void);

/* Memory shells and growable arrays */

/** An empty shell kept for old hosts. @return Always null. */
void* WINAPI HMAlloc(DWORD flags, DWORD size);
/** An empty shell kept for old hosts. @return Always null. */
void* WINAPI HMFree(void* block);
/** An empty shell kept for old hosts. @return Always null. */
void* WINAPI HMReAlloc(void* block, DWORD size);

/** A growable array of elements of one size. Hosts read the fields; the functions below change them. */
typedef struct HArray {
    DWORD cAlloc;  /**< Elements for which room exists. */
    DWORD cGrow;   /**< Growth step that was asked for (32 for 0). Kept only: growth goes by 32 elements. */
    DWORD cUsed;   /**< Elements in use. */
    DWORD cbItem;  /**< Bytes of one element. */
    DWORD fShared; /**< 1: the blocks are allocated with GMEM_SHARE. */
    BYTE* pItems;  /**< The elements, or null. */
} HArray;

/**
 * Makes an array.
 *
 * @param cbItem    Bytes of one element, not 0.
 * @param cInitial  Elements to make room for at once; may be 0.
 * @param cGrow     Growth step, kept for information; 0 reads as 32.
 * @param shared    Non-zero: the blocks carry GMEM_SHARE.
 * @return The array, to be freed with HAFree; null for cbItem 0 or without memory.
 */
HArray* WINAPI HANew(DWORD cbItem, DWORD cInitial, DWORD cGrow, int shared);
/** Sets up an array record of the caller's; arguments as HANew. @return 0, or -1 for cbItem 0 or without memory. */
int WINAPI HAInit(HArray* array, DWORD cbItem, DWORD cInitial, DWORD cGrow, int shared);
/** Frees the elements; the record stays usable. @return 0, also for null. */
int WINAPI HAEmpty(HArray* array);
/** Frees the elements and the record that HANew made. @return 0, also for null. */
int WINAPI HAFree(HArray* array);
/** Copies the element at index to out. @return 0, or -1 if index is not in use. */
int WINAPI HAGet(HArray* array, DWORD index, void* out);
/** @return The element at index in place, until the array grows; null if index is not in use. */
void* WINAPI HAGetPtr(HArray* array, DWORD index);
/**
 * Stores an element at any index, growing the array. Elements that come between hold what was there: zeros, or what
 * HAPop has left.
 *
 * @param item  The bytes of the element; null stores zeros.
 * @return 0, or -1 if the room cannot be made.
 */
int WINAPI HASet(HArray* array, DWORD index, const void* item);
/**
 * Opens a gap at index and stores an element there; an index not in use acts as HASet.
 *
 * @param item  The bytes of the element; null stores zeros.
 * @return 0, or -1 if the room cannot be made.
 * @note Keep room ahead (cInitial): an insertion that has to grow the array leaves the elements where they were
 *       and the last place zero.
 */
int WINAPI HAInsert(HArray* array, DWORD index, const void* item);
/** Appends an element. @param item Its bytes, not null. @return The new element in place; null without memory. */
void* WINAPI HAPush(HArray* array, const void* item);
/** Takes the last element off. @return Its bytes, valid until overwritten; null for an empty array. */
void* WINAPI HAPop(HArray* array);
/** @return The last element in place; null for an empty array. */
void* WINAPI HAPopRef(HArray* array);
/** Removes the element at index and closes the gap. @return 0, or -1 if index is not in use. */
int WINAPI HARemove(HArray* array, DWORD index);

/* Strings */

/**
 * Copies a text into a buffer of a known size and terminates it.
 *
 * @param dest  The buffer.
 * @param src   The text; null counts as empty.
 * @param size  Bytes of dest. 0 writes nothing; a negative size means no limit.
 * @return The number of characters copied, at most size - 1.
 */
int WINAPI _fstrnzcpy(char* dest, const char* src, int size);
/** Copies a text into a new block. @return The block, to be freed with GlobalFree; null for null or without memory. */
char* WINAPI hstrdup(const char* text);
/** Frees *slot if it is not null and stores hstrdup(text) there. @return The new pointer. */
char* WINAPI hstrdup2(char** slot, const char* text);

/* Item lists */

/** The list is kept in order by HLListAdd. A bit of HLList.wFlags. */
#define HLL_SORTED 0x0001
/** The list has no node. A bit of HLList.wFlags. */
#define HLL_EMPTY 0x0002

typedef struct HLList HLList;

/** Makes a node from an item. @return A block that begins with a pointer-sized link, or null. */
typedef void*(CALLBACK* HLLALLOC)(HLList* list, const void* item);
/** Orders a key against a node. @return Negative, 0 or positive. */
typedef int(CALLBACK* HLLCOMPARE)(HLList* list, const void* key, void* node);
/** Frees a node. @return 1 if freed, else 0. */
typedef int(CALLBACK* HLLFREE)(HLList* list, void* node);
/** Gives the item of a node, as the HLLALLOC of another list takes it. @return The item, or null. */
typedef void*(CALLBACK* HLLITEM)(HLList* list, void* node);
/** Orders two payloads. @return Negative, 0 or positive. */
typedef int(CALLBACK* HLLDATACOMPARE)(const void* a, const void* b);

/** A singly linked ring of nodes with a remembered cursor; its callbacks say what a node is. */
struct HLList {
    int            cbItem;         /**< Payload bytes of a node; -1: zero-terminated texts; 0: the callbacks know. */
    int            cItems;         /**< Number of nodes. */
    int            iCursor;        /**< Index of the node at pCursor. */
    HLLALLOC       pfnAlloc;       /**< Makes a node. */
    HLLCOMPARE     pfnCompare;     /**< Orders a key and a node. */
    HLLFREE        pfnFree;        /**< Frees a node. */
    HLLITEM        pfnItem;        /**< The item of a node. */
    HLLDATACOMPARE pfnDataCompare; /**< Order of payloads for the default pfnCompare; may be null. */
    DWORD          dwUser;         /**< A word for the owner. */
    WORD           wFlags;         /**< HLL_ bits. */
    void*          pHead;          /**< First node, or null. */
    void*          pTail;          /**< Last node, or null; its link leads to the head. */
    void*          pCursor;        /**< The node at iCursor, or null. */
};

/**
 * Makes a list.
 *
 * @param cbItem  Payload bytes of a node; -1 for texts, each node as long as its text; below -1 is refused.
 * @param pfnAlloc, pfnCompare, pfnFree, pfnItem  Callbacks, or null for the defaults: a node is the link and a copy
 *                of the item's bytes, ordered by pfnDataCompare, else as texts without case, else as bytes.
 * @param pfnDataCompare  Order of payloads, or null.
 * @param sorted  Bit 0: HLListAdd keeps the order.
 * @return The list, to be freed with HLListDestroy; null for a bad cbItem or without memory.
 */
HLList* WINAPI HLListCreate(int cbItem, HLLALLOC pfnAlloc, HLLCOMPARE pfnCompare, HLLDATACOMPARE pfnDataCompare,
                            HLLFREE pfnFree, HLLITEM pfnItem, int sorted);
/** Makes a list with the same settings and copies of the items. @param list Not null. @return The list, or null. */
HLList* WINAPI HLListDup(HLList* list);
/** Frees all nodes and the list. @return 1; 0 for null. */
int WINAPI HLListDestroy(HLList* list);
/** Frees all nodes. @return 1; 0 for null. */
int WINAPI HLListEmpty(HLList* list);
/** Adds an item: in its place in a sorted list, at the end otherwise. @return As HLListInsert, or else HLListAppend. */
int WINAPI HLListAdd(HLList* list, const void* item);
/** Appends an item. @return Number of nodes - 1 after the step (also where no node could be made); -1 for null. */
int WINAPI HLListAppend(HLList* list, const void* item);
/**
 * Inserts an item before the node at index; an index out of range appends.
 *
 * @return The index at which the item stands; -1 for a null list or without memory.
 */
int WINAPI HLListInsert(HLList* list, int index, const void* item);
/** Unlinks and frees the node at index. @return 1; 0 for a null list or an index out of range. */
int WINAPI HLListRemove(HLList* list, int index);
/** @return The node at index (-1: the last), until it is removed; null out of range. Ascending walks are cheap. */
void* WINAPI HLListGetItem(HLList* list, int index);
/**
 * Finds the node that compares equal to a key.
 *
 * @param key       What pfnCompare takes; null finds nothing.
 * @param start     Index to begin at, taken modulo the count; the search wraps.
 * @param outIndex  Receives the index, 0 when nothing was found; may be null.
 * @return The node, or null.
 */
void* WINAPI HLListFind(HLList* list, const void* key, int start, int* outIndex);
/** @return The index at which item belongs in a sorted list, before its equals. */
int WINAPI HLListFindPlace(HLList* list, const void* item);
/** Appends all items of src to dest, which decides by its pfnItem what is copied. @return 1, or 0 for a null list. */
int WINAPI HLListCopy(HLList* dest, HLList* src);
/** Moves a node. @return to, or -1 for equal or bad indexes. */
int WINAPI HLListMove(HLList* list, int from, int to);
/** Orders two lists node by node with a's pfnCompare, then by count. @return Negative, 0 or positive. */
int WINAPI HLListCompare(HLList* a, HLList* b);

/* Streams
 *
 * Bytes read and written in order: in a file, in a block of memory that grows, or in a resource. A host may make
 * streams of its own: a record that begins as Stream does, with its own functions. */

typedef struct Stream Stream;

/** Reads up to count bytes. @return The bytes read. */
typedef int(CALLBACK* STREAMREAD)(Stream* stream, void* buffer, int count);
/** Writes count bytes. @return The bytes written. */
typedef int(CALLBACK* STREAMWRITE)(Stream* stream, const void* buffer, int count);
/** Closes the stream and frees its record. */
typedef int(CALLBACK* STREAMCLOSE)(Stream* stream);
/** Goes to a position, or by a distance. @return The position now. */
typedef int(CALLBACK* STREAMSEEK)(Stream* stream, int position);

/** A stream. A file's record ends with pData; a resource's ends behind it with the handle of the loaded resource. */
struct Stream {
    int         nKind;      /**< 1: memory or resource; 2: file. */
    STREAMREAD  pfnRead;    /**< Reads; null: the stream can't be read. */
    STREAMWRITE pfnWrite;   /**< Writes; null for a resource. */
    STREAMCLOSE pfnClose;   /**< Closes. */
    STREAMSEEK  pfnSeek;    /**< Goes to a position; null for a file and a resource. */
    STREAMSEEK  pfnSeekRel; /**< Goes by a distance; null for a file and a resource. */
    void*       pData;      /**< The file's handle, the memory block or null, or where a resource is read next. */
    DWORD       nPos;       /**< Memory only, as all that follow: the position. */
    DWORD       cbData;     /**< Bytes written so far. */
    DWORD       cbAlloc;    /**< Bytes of the block. */
    DWORD       cbGrow;     /**< Bytes by which the block grows; 0: it can't. */
};

/** Creates a file, or empties an existing one, for writing. @return The stream, to be closed with SClose, or null. */
Stream* WINAPI SNewFile(const char* path);
/** Opens a file for reading; SLocateFile finds it. @return The stream, to be closed with SClose, or null. */
Stream* WINAPI SOpenFile(const char* name);
/**
 * Makes a stream over a block of memory, to write and read.
 *
 * @param size  Bytes of the first block; 0 is allowed.
 * @param grow  Bytes by which a write enlarges a full block; with 0 a write stops where the block ends.
 * @return The stream, to be closed with SClose; null without memory for its record. Without memory for the block the
 *         stream has none (pData is null) until a write gets one.
 */
Stream* WINAPI SNewMem(int size, int grow);
/**
 * Opens a resource for reading.
 *
 * @param instance  The module that has the resource.
 * @param name, type  As in FindResourceA.
 * @return The stream, to be closed with SClose; null if the resource can't be found or loaded, or for a null name.
 * @note It reads to the end of the resource and has no position to go to. SEmpty, SGetPtr, SGetSize and SDupMem are
 *       not for it: they take it for a memory stream without bytes.
 */
Stream* WINAPI SOpenRes(HINSTANCE instance, const char* name, const char* type);
/** Copies a memory stream's bytes to a new one, at position 0. @return It; null for another kind or without memory. */
Stream* WINAPI SDupMem(Stream* stream);
/**
 * Closes a stream and frees it.
 *
 * @return -1 for null. For a file -2 if it was closed, 0 if that failed; for memory and a resource 0.
 */
int WINAPI SClose(Stream* stream);
/** Reads up to count bytes. @return The bytes read, fewer at the end; -1 for null or a stream that can't be read. */
int WINAPI SRead(Stream* stream, void* buffer, int count);
/** Writes count bytes. @return The bytes written; -1 for null or a stream that can't be written. */
int WINAPI SWrite(Stream* stream, const void* buffer, int count);
/**
 * Goes to a position of a memory stream.
 *
 * @param position  Up to the bytes written; -1 goes to their end, any other changes nothing.
 * @return The position now; -1 for null or a stream that has none.
 */
int WINAPI SSeek(Stream* stream, int position);
/** As SSeek, by a distance from the position; one that leads outside the bytes written changes nothing. */
int WINAPI SSeekRel(Stream* stream, int delta);
/**
 * Reads a text that SWriteString has written: a 16-bit length and as many bytes.
 *
 * @return A block with the text, to be freed with GlobalFree; null for null, for the length 0 or without memory.
 * @note Bytes that are missing at the stream's end read as zeros: there is no telling from the result.
 */
char* WINAPI SReadString(Stream* stream);
/**
 * Writes the length of a text as 16 bits and its characters without a terminator.
 *
 * @param text  Null counts as empty. Of a longer text than 65535 characters, as many are written as the low 16 bits
 *              of its length say.
 * @return The length; -1 for a null stream.
 */
int WINAPI SWriteString(Stream* stream, const char* text);
/**
 * Reads what SWriteStream has written into a new memory stream (growth 32), at position 0.
 *
 * @return The stream; null if the bytes end early, for the length 0xFFFF (there was no stream) or without memory.
 */
Stream* WINAPI SReadStream(Stream* stream);
/**
 * Writes the size of a memory stream as 16 bits and its bytes, in pieces of 256.
 *
 * @param dest  Gets length and bytes.
 * @param src   Goes to position 0 and then to the end; below 65535 bytes, since 0xFFFF stands for no stream.
 * @return 0; -1 if a piece fell short, or for an src that isn't a memory stream (0xFFFF is written then, 0
 *         for a resource).
 */
int WINAPI SWriteStream(Stream* dest, Stream* src);
/** Frees the block of a memory stream; cbData stays. @return 0; -1 for null or another kind. */
int WINAPI SEmpty(Stream* stream);
/** @return The block of a memory stream, until a write enlarges it; null for null or another kind. */
void* WINAPI SGetPtr(Stream* stream);
/** @return The bytes written to a memory stream; -1 for null or another kind. */
int WINAPI SGetSize(Stream* stream);
/**
 * Finds a file where OpenFile looks for one.
 *
 * @param name     File name, with or without a path.
 * @param outPath  Receives the full path, cut to outSize.
 * @param outSize  Bytes of outPath.
 * @return 1 if it was found, else 0 and outPath is left alone.
 */
int WINAPI SLocateFile(const char* name, char* outPath, int outSize);

/* Typed values
 *
 * Two letters type every value: the class says how it behaves (a date with time, b boolean, c and n number, d date,
 * h character, k clock, m masked text, s text, t time, z calculator number), the type how it is stored. They stand
 * in descriptors such as "%dl" at the head of a window text. */

/** A date and time, broken down; also the stored form of type D. Ten bytes. */
typedef struct DateTimeRec {
    short year;   /**< Calendar year; 0: none; negative years have no year 0. */
    BYTE  month;  /**< 1 to 12; 0: none. */
    BYTE  day;    /**< 1 to 31; 0: none. */
    BYTE  hour;   /**< 0 to 23. */
    BYTE  minute; /**< 0 to 59. */
    BYTE  second; /**< 0 to 59. */
    BYTE  filler; /**< 0. */
    WORD  msec;   /**< 0 to 999. */
} DateTimeRec;

/**
 * Reads the descriptor at the head of a text: "%", class, type, and perhaps a second pair at once behind it.
 *
 * @param text       Not null.
 * @param outClass   Receives the class, 's' without a valid descriptor. May be null, as all out-arguments.
 * @param outType    Receives the type, 's' without a valid descriptor.
 * @param outClass2  Receives the second class, or 0.
 * @param outType2   Receives the second type; keeps its old value when there is none.
 * @return The first character behind the descriptor; text itself without one.
 */
char* WINAPI GetDataTypes(const char* text, char* outClass, char* outType, char* outClass2, char* outType2);
/** @return 1 if the letter is a data class, else 0. */
int WINAPI ValidClass(char dataClass);
/** @return 1 if the pair is valid, else 0. */
int WINAPI ValidType(char dataClass, char dataType);
/**
 * @return Bytes of a stored value; -1 for the text classes m and s; 0 where the class has no such type. Whether the
 *         pair is valid isn't checked.
 */
int WINAPI GetDataSize(char dataClass, char dataType);
/**
 * Writes the text of a stored value.
 *
 * @param data         The stored value.
 * @param dataClass, dataType  Its pair.
 * @param format       Picture of the class; null or empty means the default.
 * @param out          Receives the text, terminated.
 * @param outSize      Bytes of out, at least 2.
 * @param outNegative  Receives 1 if the value shows in its negative colour, else 0; may be null.
 * @param editForm     Non-zero: the form for editing (dates and numbers differ from the display form).
 * @return Length of the text, or 0 on failure. A number too wide for out fills it with '#' and gives 0. A date's
 *         length counts what out cuts off, and a number's is that of DoubleToString: take strlen of out to go by the
 *         text.
 */
int WINAPI FormatData(const void* data, char dataClass, char dataType, const char* format, char* out, int outSize,
                      int* outNegative, int editForm);
/**
 * Reads a text into a stored value.
 *
 * @param data     Receives the value: GetDataSize bytes, for texts the length of text plus 1.
 * @param dataClass, dataType  The pair.
 * @param format   Picture of the class; null or empty means the default.
 * @param text     The text; null stores nothing and gives 0.
 * @param noCheck  Non-zero: dates and times aren't checked against calendar and clock.
 * @return 0 on success. Non-zero for a date or time that had to be repaired (the repaired value is stored), for a
 *         clock value that its type cannot hold, and for an unknown class. A number that its type cannot hold is stored
 *         as 0 or loses its high bits, and a year is brought into 1900 to 2099 (two digits by the current century):
 *         neither is a failure.
 */
int WINAPI ParseData(void* data, char dataClass, char dataType, const char* format, const char* text, int noCheck);

/** Breaks a stored date or time down; fields that the type lacks are 0. @return 1, or 0 if it can't be converted. */
int WINAPI DataToDateTime(DateTimeRec* rec, const void* data, char dataType);
/** Stores a broken-down date and time as a type. @return 1, or 0 if it can't be converted. */
int WINAPI DateTimeToData(const DateTimeRec* rec, void* data, char dataType);
/**
 * Checks a date.
 *
 * @param rec     The record; null doesn't pass.
 * @param repair  Non-zero: a failing field is mended, and years are brought into 1900 to 2099, two digits by the
 *                current century; that alone is no failure.
 * @param checkYear, checkMonth, checkDay  Which fields count. Without the day but with year and month, the day
 *                becomes 1 whatever repair says.
 * @return 1 if it passes as it stood, else 0.
 */
int WINAPI ValidDate(DateTimeRec* rec, int repair, int checkYear, int checkMonth, int checkDay);
/**
 * Checks a time.
 *
 * @param repair      Non-zero: a failing field is mended.
 * @param twelveHour  Non-zero: hours run from 1 to 12, else from 0 to 23.
 * @param checkHour, checkMinute, checkSecond  Which fields count.
 * @return 1 if it passes as it stood, else 0.
 */
int WINAPI ValidTime(DateTimeRec* rec, int repair, int twelveHour, int checkHour, int checkMinute, int checkSecond);

/**
 * Stores a number as a type. Types of whole numbers: cut towards zero, 0 out of the 32-bit range, and the low bits
 * where the type is smaller. d keeps the number, f rounds it.
 *
 * @return 1, or 0 for no such type.
 */
int WINAPI DoubleToNum(void* data, char dataType, double value);
/** @return The stored number as a double; 0.0 for null or a type that is no number. */
double WINAPI NumToDouble(const void* data, char dataType);
/**
 * Prints a number through a picture such as "#,##0.00;(#,##0.00)".
 *
 * @param picture   Null or empty means "*0.*".
 * @param out       Receives the text.
 * @param outSize   Bytes of out, at least 2.
 * @param editForm  Non-zero: without literals and grouping, the minus sign always printed.
 * @return Length of the display text; 0 if it did not fit, with out full of '#'. Where a ',' stands behind the point
 *         of the picture it counts although it isn't printed, and in edit form the decimal separator isn't counted:
 *         take strlen of out.
 */
int WINAPI DoubleToString(double value, const char* picture, char* out, int outSize, int editForm);
/** Reads digits, the decimal separator and '-'; drops all else. @return The number; 0.0 for null. */
double WINAPI StringToDouble(const char* text);

/**
 * Lays a text out over a mask, or takes it out of one.
 *
 * @param text     The bare text, or the masked text with strip.
 * @param mask     '@' letter, '#' digit, '!' punctuation, '&' letter or digit, '*' any printable character. A
 *                 backslash makes the next character a literal, a group in brackets is skipped; others are literals.
 * @param outSize  Bytes of out, at least 1.
 * @param strip    Non-zero: keep only what the placeholders hold.
 * @return Length of the result; 0 for null arguments or no room.
 */
int WINAPI MaskToString(const char* text, const char* mask, char* out, int outSize, int strip);
/** Writes the true or false text of a picture "true;false" ("TRUE;FALSE" for null or empty). @return Its length. */
int WINAPI BoolToString(int value, const char* format, char* out, int outSize);
/** Reads a colour word or up to three decimal numbers, '[' before them allowed. @return 1 if stored, else 0. */
int WINAPI StringToColor(const char* text, COLORREF* outColor);
/**
 * Copies one field of a text into a buffer of the library, 255 characters at the most.
 *
 * @param delimiter  Ends a field.
 * @param escape     The character behind it is copied as it stands.
 * @param skip       Dropped, or replaced if replace is not 0. May be 0.
 * @param outNext    Receives the place behind the delimiter, or the end of the text; may be null.
 * @return The buffer; the next call overwrites it.
 */
char* WINAPI StringParse(const char* text, char delimiter, char escape, char skip, char replace, char** outNext);
/**
 * Gives the default description text of a button kind.
 *
 * @param kind     0, 1 push; 2 check; 4 three-state; others give 0.
 * @param size     Bytes of buffer, for the library's own strings; caption is appended whole.
 * @param caption  Stands in for the default caption; may be null.
 * @return Length of the text.
 */
int WINAPI LoadDefTypeText(int kind, char* buffer, int size, const char* caption);

/** Separators and default formats of the whole library. */
typedef struct IntlSettings {
    char  szDateFormat[16]; /**< Default date format, starts as "d/m/yyyy". */
    char  szTimeFormat[16]; /**< Default time format, starts as "h:mm:ss". */
    char  chTimeSep;        /**< Time separator, starts as ':'. */
    char  chDateSep;        /**< Date separator, starts as '.'. */
    char  chThousandSep;    /**< Thousands separator of the locale, 0 for none. */
    char  chDecimalSep;     /**< Decimal separator of the locale. */
    DWORD dwFlags;          /**< 0. */
    char  szExtra1[4];      /**< Empty. */
    char  szExtra2[4];      /**< Empty. */
    char  szCurrency[16];   /**< Currency text. */
} IntlSettings;

/**
 * Fills the settings from the locale and the start values, and sets the C runtime's locale to the user's (LC_ALL),
 * which a host that shares the runtime feels. The library calls it once at start.
 */
void WINAPI GetIntlSettings(void);
/** @return The settings, alive as long as the library; a host may read and write them. */
IntlSettings* WINAPI WWGetIntlInfo(void);
/** Sets the date separator. @return 1; 0 for a letter, a digit or a character from 128 up. */
int WINAPI SetDateSep(char ch);
/** Sets the time separator. @return As SetDateSep. */
int WINAPI SetTimeSep(char ch);
/** Sets the decimal separator. @return As SetDateSep. */
int WINAPI SetDecimalSep(char ch);
/** Sets the thousands separator. @return As SetDateSep. */
int WINAPI SetThousandsSep(char ch);
/**
 * Sets the default date format, after which dates are edited. A date is typed as a whole into an empty field where the
 * format has one letter for the day and one for the month, which take a second digit, and the date separator, or '/' for
 * it, between them, as in "d/m/yyyy"; with "dd" the second digit goes into the next part.
 *
 * @param format  15 characters at the most; they are kept in lower case.
 * @return 1; 0 without d, m and y in it.
 */
int WINAPI SetDefDateFormat(const char* format);
/** Sets the default time format, 15 characters at the most, in lower case. @return 1; 0 without h and m in it. */
int WINAPI SetDefTimeFormat(const char* format);

/* Data lists
 *
 * Lists of typed values with a typed code beside each, if wanted. An index counts from 0; where a value is read, -1
 * means the last item. The HCDL names at the end are second names of the same functions. */

/** The list has codes. A bit of DataList.wFlags; the two bits above it are the sort mode. */
#define HDL_HASCODE 0x0001

/** A list of values and codes. List and combo controls hold one. Five words; who copies them shares the list. */
typedef struct DataList {
    WORD    wFlags;    /**< HDL_HASCODE; bits 1 and 2: 0 in order of insertion, 1 sorted by data, 2 by code. */
    char    cClass;    /**< Data class. */
    char    cType;     /**< Data type. */
    char    cClass2;   /**< Data class of the code, or 0. */
    char    cType2;    /**< Data type of the code, or 0. */
    char*   pszFormat; /**< Picture for FormatData, or null. */
    HLList* pValues;   /**< The values: a node's payload is the value itself. */
    HLList* pCodes;    /**< The codes, value by value; null without HDL_HASCODE. */
} DataList;

/**
 * Makes a list.
 *
 * @param sortMode  0: in order of insertion; 1: sorted by data; 2: sorted by code.
 * @param dataClass, dataType  Pair of the data; has to be valid.
 * @param class2, type2  Pair of the codes; without a valid one the list has no codes.
 * @param format  Picture for FormatData; it is copied. May be null.
 * @return The list; null for a bad first pair or without memory. HDLDestroy empties it, GlobalFree frees its block.
 */
DataList* WINAPI HDLCreate(int sortMode, char dataClass, char dataType, char class2, char type2, const char* format);
/** As HDLCreate, in a record of the caller's, whose old contents don't matter. @return 1, or 0 and a zeroed record. */
int WINAPI HDLInit(DataList* dl, int sortMode, char dataClass, char dataType, char class2, char type2,
                   const char* format);
/** Frees all that the list holds and zeroes the record, which stays the caller's. @return 1; 0 for null. */
int WINAPI HDLDestroy(DataList* dl);
/** Removes all items. @return 1; 0 for null. */
int WINAPI HDLEmpty(DataList* dl);
/**
 * Adds a copy of a value and of its code.
 *
 * @param index  Place in an unsorted list; one outside it appends. A sorted list finds the place itself, an item goes
 *               in front of its equals.
 * @param data   The value, not null.
 * @param code   The code; null stores zeros or an empty text. Not read without codes.
 * @return The item's index; -1 for null data or without memory. A list to be sorted by codes that it doesn't have
 *         takes nothing and gives index.
 */
int WINAPI HDLInsertItem(DataList* dl, int index, const void* data, const void* code);
/** Removes an item. @return Non-zero; 0 for null or an index out of range. */
int WINAPI HDLDeleteItem(DataList* dl, int index);
/**
 * Finds a value in the order of its type (texts without case).
 *
 * @param start  Index to begin at, taken modulo the count; the search wraps.
 * @return The index, or -1.
 */
int WINAPI HDLFindData(DataList* dl, int start, const void* data);
/** As HDLFindData, by the code; -1 for a list without codes. */
int WINAPI HDLFindCode(DataList* dl, int start, const void* code);
/**
 * Copies an item's value.
 *
 * @param out  Receives it: GetDataSize bytes, for texts HDLGetDataSize + 1.
 * @return 1; 0 if nothing was copied: no such item, or an empty text.
 */
int WINAPI HDLGetData(DataList* dl, int index, void* out);
/** As HDLGetData, for the code. */
int WINAPI HDLGetCode(DataList* dl, int index, void* out);
/** @return An item's value in the list, until the item is removed; null without the item. */
void* WINAPI HDLGetDataPtr(DataList* dl, int index);
/** @return An item's code in the list, until it is removed or set; null without the item or codes. */
void* WINAPI HDLGetCodePtr(DataList* dl, int index);
/** @return Bytes of a value, whatever the index. Of a text its length without the terminator, 0 without the item. */
int WINAPI HDLGetDataSize(DataList* dl, int index);
/** As HDLGetDataSize, for the code; 0 without codes. */
int WINAPI HDLGetCodeSize(DataList* dl, int index);
/**
 * Replaces an item's code.
 *
 * @param code  The code, not null. A text longer than the old one moves to a new block.
 * @return 1; 0 for null, without the item or codes, in a list sorted by code, or without memory.
 */
int WINAPI HDLSetCode(DataList* dl, int index, const void* code);
/** Copies the picture. @param size Bytes of out. @return The characters copied. */
int WINAPI HDLGetFormat(DataList* dl, char* out, int size);
/** Replaces the picture. @return 1; 0 for null, for data of class s (nothing changes) or without memory. */
int WINAPI HDLSetFormat(DataList* dl, const char* format);
/**
 * Writes the text of an item's value.
 *
 * @param out          Receives the text, empty without the item.
 * @param outSize      Bytes of out, at least 2.
 * @param outNegative  Receives 1 if the value shows in its negative colour, else 0; may be null.
 * @param editForm     Non-zero: the form for editing.
 * @return Length of the text, as FormatData gives it; 0 without the item.
 */
int WINAPI HDLFormatItem(DataList* dl, int index, char* out, int outSize, int* outNegative, int editForm);
/**
 * Reads a list that HDLSave has written. A sorted list is put in order as if its items were added one by one.
 *
 * @param dl      A record of the caller's, whose old contents don't matter.
 * @param stream  Read up to the end of the list.
 * @return 0; -1 and a zeroed record for a null argument, for bytes that are no list or end early, for a text of 256
 *         characters or more, or without memory.
 */
int WINAPI HDLLoad(DataList* dl, Stream* stream);
/**
 * Writes a list: flags, picture, a block of values and, with codes, a block of codes. All numbers are little-endian.
 *
 * @return 0, also if the stream took less; -1 for a null list.
 * @note A text of 256 characters or more is written, but HDLLoad refuses the file.
 */
int WINAPI HDLSave(DataList* dl, Stream* stream);

/** Second name of HDLCreate. */
DataList* WINAPI HCDLCreate(int sortMode, char dataClass, char dataType, char class2, char type2, const char* format);
/** Second name of HDLDestroy. */
int WINAPI HCDLDestroy(DataList* dl);
/** Second name of HDLEmpty. */
int WINAPI HCDLEmpty(DataList* dl);
/** Second name of HDLInsertItem. */
int WINAPI HCDLInsertItem(DataList* dl, int index, const void* data, const void* code);
/** Second name of HDLDeleteItem. */
int WINAPI HCDLDeleteItem(DataList* dl, int index);
/** Second name of HDLFindData. */
int WINAPI HCDLFindData(DataList* dl, int start, const void* data);
/** Second name of HDLFindCode. */
int WINAPI HCDLFindCode(DataList* dl, int start, const void* code);
/** Second name of HDLGetData. */
int WINAPI HCDLGetData(DataList* dl, int index, void* out);
/** Second name of HDLGetCode. */
int WINAPI HCDLGetCode(DataList* dl, int index, void* out);
/** Second name of HDLGetDataSize. */
int WINAPI HCDLGetDataSize(DataList* dl, int index);

/* Control frame */

/** Set around changes of the control's own; nothing in the library tests it. A bit of wFlags. */
#define CF_UPDATING 0x0800
/** The veto of a notification. A bit of wFlags. */
#define CF_CANCEL 0x1000
/** The user has changed the value since the parent cleared the bit. A bit of wFlags. */
#define CF_CHANGED 0x2000
// A header of the platform, which windows.h includes or not, has another CF_NULL (0) that concerns no control.
#undef CF_NULL
/** The value is null. A bit of wFlags (grids and combos use the bit otherwise). */
#define CF_NULL 0x4000

// Control records, grid records and row nodes lie on two-byte boundaries on every architecture.
#pragma pack(push, 2)

/** The fields with which every control record begins. A host reaches the record by WWM_GETSTATE. */
typedef struct ControlHeader {
    HWND  hWnd;    /**< The control's window. */
    HWND  hParent; /**< Gets the notifications; may differ from GetParent. */
    DWORD wId;     /**< Control id; the low 16 bits count. */
    HFONT hFont;   /**< Current font; null: the default. */
    WORD  wFlags;  /**< CF_ bits and the control's own. */
    DWORD dwStyle; /**< Copy of the window style; a grid lays its own fields over it. */
} ControlHeader;

/** Message handler of a control: sets *pDefault to non-zero to ask for the default processing. */
typedef LRESULT(CALLBACK* WWHANDLER)(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault,
                                     void* record);

/** Gives 1 if CF_CHANGED is set, else 0. */
#define WWM_GETCHANGED 1137
/** wParam: non-zero sets CF_CHANGED, 0 clears it. Gives 1. */
#define WWM_SETCHANGED 1138
/** wParam: non-zero sets CF_UPDATING, 0 clears it. Gives 1. */
#define WWM_SETUPDATING 1143
/** Gives 1 if CF_UPDATING is set, else 0. */
#define WWM_GETUPDATING 1144
/** From a child control to its owner: the child has got the focus. */
#define WWM_CHILDFOCUS 1145
/** From a child control to its owner: the child has lost the focus. */
#define WWM_CHILDBLUR 1146
/** Gives the control's record, or 0. */
#define WWM_GETSTATE 1147
/** lParam: the record to keep. Gives 0. For the controls' own use. */
#define WWM_SETSTATE 1148
/** Gives hParent, the window that gets the notifications. */
#define WWM_GETPARENT 1149
/** wParam: the window that is to get the notifications. Gives the old one. */
#define WWM_SETPARENT 1150
/** Gives the style word. */
#define WWM_GETSTYLE 1151
/** lParam: the new style word, stored in the record and in GWL_STYLE. Gives 1. */
#define WWM_SETSTYLE 1152
/** Vetoes the notification that is being sent. Gives 1. */
#define WWM_CANCEL 1155
/** Gives 1 if CF_NULL is set, else 0; of a grid or a combo that tells nothing about a value. */
#define WWM_ISNULL 1156

/**
 * The body of a control's window procedure: fetches the record and runs the handler, then the defaults.
 *
 * @param handler  Runs if the window has a record, and for WM_NCCREATE.
 * @param offset   Place of the record in the window's extra bytes.
 * @return The handler's result, or that of the default processing if it asked for it.
 */
LRESULT WINAPI HandleMsg(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, WWHANDLER handler, int offset);
/**
 * Answers the messages that all controls have in common (WWM_*, WM_SETFONT, WM_GETFONT).
 *
 * @param record     The control's record.
 * @param outResult  Receives the message's result.
 * @return 1 if it answered, else 0.
 */
int WINAPI IsStdMessage(void* record, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* outResult);
/**
 * Sends a notification (WM_COMMAND) to the control's hParent. Host code runs inside.
 *
 * @param record  The control's record.
 * @param code    The notification, cut to 16 bits.
 * @return 1 if the parent vetoed (WWM_CANCEL), 0 if not or without a parent; code if the window is gone, and then
 *         the record is gone too.
 */
int WINAPI Notify(void* record, int code);
/** Sends WM_COMMAND with the window's id and code to its parent. Host code runs inside. @return Its answer. */
LRESULT WINAPI NotifyParent(HWND hwnd, int code);
/**
 * Asks the parent for a background brush.
 *
 * @param kind  1 edit, 2 list, 3 button, 6 static, 21 a grid's cell control.
 * @return The parent's answer; the white stock brush for another kind.
 */
HBRUSH WINAPI FireCtlColorMsg(void* record, int kind, HDC hdc);
/** @return 2834 or 2609 by the class of the top-level window ("RWSWnd...", "DlgEdit..."), else 0. */
int WINAPI GetParentMod(HWND hwnd);
/** @return Average character width (low word) and height (high word) of a font in pixels; null: the system font. */
DWORD WINAPI GetBaseUnits(HFONT hFont);
/**
 * EnumChildWindows callback that takes siblings out of a clip region.
 *
 * @param data  Pointer to DC, window and screen RECT, one behind the other; null: nothing happens.
 * @return 1.
 */
BOOL CALLBACK ClipSibs(HWND hwnd, LPARAM data);
/**
 * Scrolls a control while the mouse is dragged outside it; pumps messages until the button comes up.
 *
 * @param horizontal  Non-zero: distance to the left and right counts too.
 * @note Any message may be dispatched inside. CF_CANCEL in the record ends it.
 */
void WINAPI TimedScroll(void* record, int horizontal);
/** @return The overwrite mode of all edit controls. */
int WINAPI GetOverwriteMode(void);
/**
 * Sets the overwrite mode of all edit controls. The caret of a field with the focus changes with HEM_SETOVERWRITE, not
 * with this.
 *
 * @return The old mode.
 */
int WINAPI SetOverwriteMode(int mode);

/*
 * Dialogs in windows
 *
 * The controls of a dialog template inside a window that exists already, such as a page of a tabbed dialog, and the Tab
 * key and mnemonics across the dialog and its page.
 */

/**
 * Makes the controls of a dialog template as children of a window, and sends it WM_INITDIALOG.
 *
 * The template is in the classic form, without numbers in place of menu, class and titles. Its title becomes the text
 * of the window, if it has one. Texts are cut at 127 bytes. A control's creation data are an address inside the
 * resource, which isn't null where there are none.
 *
 * @param instance        Whose resource the template is.
 * @param dialogTemplate  Its name, or its number by MAKEINTRESOURCE.
 * @param hwnd            The window.
 * @param outRect         Receives the dialog's size in pixels, left and top 0; may be null.
 * @param outFont         Receives the template's font in bold, which the controls get and the caller owns, or null if
 *                        the template names none or it can't be made. A null pointer: the template's font isn't made,
 *                        and the dialog's units are those of the system font.
 * @return The first child with WS_TABSTOP, else the first child; null if the template isn't found or has no controls.
 * @note A template that isn't found, or is cut off in front of its items, changes neither the window nor what outRect
 *       and outFont point to. One that is cut off later gives the controls in front of the cut, and one that tells of
 *       more than 255 items all that there are. Host code runs inside; it may destroy the window or the controls, and
 *       the result may be a control that is gone.
 */
HWND WINAPI CreateDialogInWin(HINSTANCE instance, const char* dialogTemplate, HWND hwnd, RECT* outRect, HFONT* outFont);
/**
 * Hangs a block of the host's information on a window.
 *
 * @param block  The block, which FreeDlgInfo can free if it is one of GlobalAlloc with GMEM_FIXED; null: a new one.
 * @param size   Bytes of a new block, which reads as zero.
 * @return The block; null if the window has one already, if block is null and size 0 or less, if hwnd isn't a window,
 *         or without memory.
 */
void* WINAPI CreateDlgInfo(HWND hwnd, void* block, int size);
/** @return The block that CreateDlgInfo has hung on the window, or null. */
void* WINAPI GetDlgInfo(HWND hwnd);
/**
 * Takes the block off a window, with the window properties "L" and "H".
 *
 * @param free  Non-zero: the block is freed.
 * @return The block, which is the caller's now; null if it was freed or there was none.
 */
void* WINAPI FreeDlgInfo(HWND hwnd, int free);
/**
 * Destroys all children of a window and repaints it. Host code runs inside.
 *
 * @return As EnumChildWindows; 0 if hwnd isn't a window.
 */
BOOL WINAPI ClearDialog(HWND hwnd);
/**
 * Takes messages for a dialog with a page, before they are dispatched: Tab leaves the page at its ends and enters it
 * from the control that it belongs to, and mnemonics are those of the dialog and the page. It stands in the place of
 * IsDialogMessageA in a host's message loop. Host code runs inside.
 *
 * Tab on the control to which the page belongs goes to the page's first tab stop, and Shift+Tab to its last one, so
 * Shift+Tab doesn't reach the dialog's controls in front of that control from the page.
 *
 * @param hDlg   The dialog.
 * @param hPage  The window with the controls of the page, a dialog too; null: there is no page, and this is
 *               IsDialogMessageA for the dialog, without the library's mnemonics.
 * @param idTab  Id of the dialog's control to which the page belongs, usually a tab control.
 * @param msg    The message. The window with the focus is taken from it.
 * @return Non-zero if the message was used and isn't to be dispatched; 0 if msg is null.
 */
BOOL WINAPI IsTabDlgMessage(HWND hDlg, HWND hPage, int idTab, MSG* msg);
/**
 * EnumChildWindows callback that looks for the control with a mnemonic: one with DLGC_BUTTON gets HBM_CLICK, and for
 * all but push buttons the parent is sent WM_NEXTDLGCTL, by which a dialog gives them the focus. A walk looks at what
 * stands behind the window of the message, the next at the rest.
 *
 * The mnemonic is the character behind the first & among the first 63 characters of the text. Hidden windows have none.
 *
 * @param hwnd  The window that the walk has come to.
 * @param msg   A pointer to the MSG of the key; null: the walk goes on.
 * @return 0 if the mnemonic was found, 1 to go on.
 * @note How far the walk has come is kept between calls, and IsTabDlgMessage alone begins anew: after a walk that found
 *       its control, the next one may look at all windows from its start. Host code runs inside.
 */
BOOL CALLBACK IsMnemonic(HWND hwnd, LPARAM msg);
/**
 * Centres a pop-up on the client area of its owner, or a window without one on the screen.
 *
 * @param yOffset  Pixels to add to y.
 * @return Non-zero, or 0 if hwnd isn't a window.
 * @note The corner of a pop-up never lies beyond the left or the upper edge of the screen. A child is moved to the same
 *       numbers in its parent's client area.
 */
BOOL WINAPI CenterWindow(HWND hwnd, int yOffset);
/** Centres a top-level window on the mouse pointer, held to the screen. @return Non-zero, or 0 on failure. */
BOOL WINAPI CenterAboutCursor(HWND hwnd);
/** @return The height of a window with its frame in pixels; 0 if hwnd isn't a window. */
int WINAPI WindowHeight(HWND hwnd);
/** @return The width of a window with its frame in pixels; 0 if hwnd isn't a window. */
int WINAPI WindowWidth(HWND hwnd);
/**
 * Converts both corners of a rectangle from the screen to the client coordinates of a window, in place.
 *
 * @param rect  Null: nothing happens.
 */
void WINAPI RStoC(HWND hwnd, RECT* rect);
/**
 * Converts both corners of a rectangle from the client coordinates of a window to the screen, in place.
 *
 * @param rect  Null: nothing happens.
 */
void WINAPI RCtoS(HWND hwnd, RECT* rect);

/* Drawing */

/** Text in COLOR_GRAYTEXT. */
#define DPB_DISABLED 0x0001
/** A dark frame around the face. */
#define DPB_DEFAULT 0x0002
/** Pressed face. */
#define DPB_PRESSED 0x0004
/** Text left-aligned. */
#define DPB_LEFT 0x0008
/** Text right-aligned; wins over DPB_LEFT. */
#define DPB_RIGHT 0x0010
/** Text embossed in white. */
#define DPB_EMBOSS 0x0020
/** On return the rectangle is the inner face. */
#define DPB_INNERRECT 0x0080
/** Flat header face. */
#define DPB_HEADER 0x0100
/** Upward sort mark at the right end. */
#define DPB_SORTUP 0x0200
/** Downward sort mark at the right end. */
#define DPB_SORTDOWN 0x0400
/** Face in the library's select brush. */
#define DPB_SELECTED 0x0800
/** Face in the library's face brush, if there is one. */
#define DPB_LIBFACE 0x1000

/**
 * Draws a 3-D frame.
 *
 * @param rect  The outside; becomes the inside. Null: nothing happens.
 * @param kind  0 plain line, 1 raised, 2 ridge, 3 sunken, 4 raised by two pixels; others draw nothing.
 * @param fill  Non-zero: the inside is filled with the brush in dc.
 */
void WINAPI Draw3DBorder(HDC dc, RECT* rect, int kind, int fill);
/** Paints a control's non-client frame: a ridge with fBorder, else sunken. */
void WINAPI HNCPaint(HWND hwnd, int fBorder);
/**
 * Draws a push-button or header face with a text, a bitmap or an image of the library, without flicker.
 *
 * @param hwnd, unused  Not read.
 * @param rect       The face; under DPB_INNERRECT it becomes the inner face.
 * @param flags      DPB_ bits.
 * @param text       Caption; '^' breaks the line. May be null.
 * @param font       Font of the text; null: the system font.
 * @param bitmap     Drawn instead of the text, pure green being transparent. May be null.
 * @param textColor  Colour of the text.
 * @param image      Index in the library's image strip, drawn instead of all else; -1 for none.
 */
void WINAPI DrawPushButton(HWND hwnd, HDC dc, RECT* rect, int unused, WORD flags, const char* text, HFONT font,
                           HBITMAP bitmap, COLORREF textColor, int image);

/* Pictures */

/** Nothing. A kind of picture. */
#define PIC_NONE 0
/** A bitmap without a palette. A kind of picture. */
#define PIC_BITMAP 1
/** An icon. A kind of picture. */
#define PIC_ICON 2
/** A bitmap made from a DIB, perhaps with a palette. A kind of picture. */
#define PIC_DIB 3
/** An image of the library's strip. A kind of picture. */
#define PIC_STRIP 4

#pragma pack(push, 8)
/** A picture that LoadPic has found, or none. */
typedef struct Pic {
    DWORD    nKind;    /**< PIC_ kind. */
    HANDLE   hImage;   /**< Bitmap or icon; -1 for PIC_STRIP, null for none. */
    HPALETTE hPalette; /**< Palette of PIC_DIB, or null. */
    int      nImage;   /**< For PIC_STRIP, the index of the image. */
} Pic;
#pragma pack(pop)

/**
 * Finds a picture by its name and counts one use more of it; each picture is loaded once.
 *
 * Tried in this order: any name that begins with "IM" is an image of the library's strip, by the number that follows,
 * else the first; a bitmap, then an icon among the resources of module, then of the library; a file, first as ".BMP",
 * then as ".ICO" where the name has no dot.
 *
 * @param pic     Filled in; without a picture all zero.
 * @param module  Whose resources are tried first; null: the program's.
 * @param name    The name; case doesn't matter for a picture that is loaded already.
 * @return 1, or 0 if the name leads nowhere or the file is damaged. FreePic gives a picture back.
 */
int WINAPI LoadPic(Pic* pic, HINSTANCE module, const char* name);
/**
 * Gives one use of a picture back; with the last one the picture goes.
 *
 * @param unused  Not read.
 * @return 1 while others use it; 0 for a picture that LoadPic hasn't given and for one of the strip; else the result of
 *         the platform's deletion.
 */
int WINAPI FreePic(const Pic* pic, int unused);
/**
 * Draws a picture at its own size; an icon at the system's size of icons.
 *
 * @param x, y  Upper left corner.
 * @param key   Colour of a bitmap that isn't drawn; 0: all of it is drawn.
 * @return 1; 0 for an unknown kind. For an icon the platform's result.
 */
int WINAPI PaintPic(HDC dc, const Pic* pic, int x, int y, COLORREF key);
/** Tells the size of a picture in pixels. @return 1, or 0 for an unknown kind. */
int WINAPI GetPicDimensions(const Pic* pic, int* outWidth, int* outHeight);

/*
 * Button control
 *
 * The class "HButt": push button, check box and button of many states, with a caption, a picture for each state and a
 * sound. A window text that begins with a digit describes it: the place of the caption, the place of the picture, and how
 * the caption lies to it where both have one place, a digit each from 0 (upper left) to 8 (lower right); for HBS_CHECK a
 * type letter of class b; ";", the caption ("^" breaks the line); ";", names of pictures separated by ":"; ";", a sound,
 * perhaps with "%a" before it for HBS_ASYNCSOUND. Colour groups may stand before the caption, its colour, and before the
 * pictures, the colour that isn't drawn. Any other text is a caption.
 */

/** The kind's bits; kinds that aren't named draw like push buttons. Style bits. */
#define HBS_KINDMASK 0x000F
/** Push button. A kind. */
#define HBS_PUSH 0x0000
/** Default push button, with a dark frame. A kind. */
#define HBS_DEFPUSH 0x0001
/** Check button. A kind. */
#define HBS_CHECK 0x0002
/** Button of three or more states. A kind. */
#define HBS_THREESTATE 0x0004
/** Painted straight onto the parent's background. Style bit. */
#define HBS_TRANSPARENT 0x0010
/** Caption left-aligned, not centred. Style bit. */
#define HBS_LEFTTEXT 0x0020
/** Caption right-aligned; wins over HBS_LEFTTEXT. Style bit. */
#define HBS_RIGHTTEXT 0x0040
/** Takes no focus; WS_TABSTOP goes at creation, and BM_SETSTYLE is refused. Style bit. */
#define HBS_NOFOCUS 0x0080
/** The parent is asked to draw it first (WM_DRAWITEM). Style bit. */
#define HBS_OWNERDRAW 0x0100
/** Two pictures a value: the second one shows while the button is pressed. Style bit. */
#define HBS_UPDOWN 0x0400
/** A click steps the value. Any value asked for but 0 clears the radio buttons of its group. Style bit. */
#define HBS_AUTO 0x0800
/** No raised face. Style bit. */
#define HBS_NOFACE 0x1000
/** A white shadow of the caption. Style bit. */
#define HBS_SHADOWTEXT 0x2000
/** Sounds play on while the program runs on. Style bit. */
#define HBS_ASYNCSOUND 0x8000

/** The press came from the space bar. Bit of ControlHeader.wFlags. */
#define HBF_SPACEDOWN 0x0001
/** The face looks pressed. Bit of ControlHeader.wFlags. */
#define HBF_PRESSED 0x0004
/** A focus rectangle stands on a transparent button. Bit of ControlHeader.wFlags. */
#define HBF_FOCUSDRAWN 0x0010
/** A sound file was found. Bit of ControlHeader.wFlags. */
#define HBF_SOUNDFILE 0x0020

/*
 * Messages of the button. It also answers BM_GETCHECK (240), BM_SETCHECK (241, wParam: value, lParam: notify),
 * BM_GETSTATE (242: 1 while pressed), BM_SETSTATE (243, wParam: pressed; if so, it sounds and clicks too), BM_SETSTYLE
 * (244, wParam: kind) and BM_CLICK (245). The clicks of BM_SETSTATE and BM_CLICK tell nobody.
 * Places count from 0 to 8.
 */

/** Gives the picture's place. */
#define HBM_GETPICPOS 1054
/** wParam: index. Gives the handle of the picture; 0 out of range. */
#define HBM_GETPIC 1055
/** Gives the number of pictures. */
#define HBM_GETPICCOUNT 1056
/** Gives the colour of pictures that isn't drawn. */
#define HBM_GETPICKEY 1057
/** Gives the place of the caption relative to the picture. */
#define HBM_GETRELPOS 1058
/** wParam: bytes of lParam, a buffer. Gives the sound resource; without one copies the file's name, gives its length. */
#define HBM_GETSOUND 1059
/** Gives the caption's place. */
#define HBM_GETTEXTPOS 1060
/** Gives the kind. */
#define HBM_GETKIND 1063
/** wParam: place. Gives 1; 0 for a place above 8. */
#define HBM_SETPICPOS 1074
/**
 * wParam: index, and PIC_ kind in the high word, 0 to keep it. lParam: handle, which stays the host's; 0: the library's
 * default picture, if any. Gives the old handle if FreePic gives 0 for it, so a host's own and the last use of a strip's;
 * 0 out of range, and for a picture that the library has freed or that others still use.
 */
#define HBM_SETPIC 1075
/** lParam: colour of pictures that isn't drawn. Gives 1. */
#define HBM_SETPICKEY 1076
/** wParam: place. Gives 1; 0 for a place above 8. */
#define HBM_SETRELPOS 1077
/**
 * wParam: sound resource, or 0. lParam: file name, or 0; "%a" before it sets HBS_ASYNCSOUND. A name gives 1 if it is
 * found; else the old resource. The resource is one that was found, under HBS_ASYNCSOUND one that was loaded.
 */
#define HBM_SETSOUND 1078
/** wParam: place. Gives 1; 0 for a place above 8. */
#define HBM_SETTEXTPOS 1079
/** lParam: out, of the value's type. Gives its bytes, 0 for the null value, -1 for a null pointer. */
#define HBM_GETVALUE 1080
/** lParam: value, or null for the null value. Gives 1. */
#define HBM_SETVALUE 1081
/** Gives the variable that mirrors the value, or null. */
#define HBM_GETLINK 1082
/** lParam: variable that mirrors the value from now on and gives it now; null for none and the null value. Gives 1. */
#define HBM_SETLINK 1083
/** Gives the bytes of the value. */
#define HBM_GETVALUESIZE 1084
/** Gives the number of states. */
#define HBM_GETSTATECOUNT 1085
/** Gives 0 if the next window is a radio button of the same group, else 1. */
#define HBM_ISGROUPEND 1086
/** wParam: number of pictures, 255 at the most. Fewer than there are: all of them go first. Gives the number. */
#define HBM_SETPICCOUNT 1087
/** wParam: index. Gives the palette of the picture; 0 out of range. */
#define HBM_GETPALETTE 1088
/** As a click by the user. Gives 1. */
#define HBM_CLICK 1123
/** Gives the background brush of a button without a face, or null. */
#define HBM_GETBKBRUSH 1124
/** wParam: brush, or null. Gives the old one. */
#define HBM_SETBKBRUSH 1125
/** Gives the caption's colour. */
#define HBM_GETTEXTCOLOR 1130
/** lParam: colour. Gives 1. */
#define HBM_SETTEXTCOLOR 1131

/* Notifications of the button: codes of WM_COMMAND. */

/** The user clicked, or a value was set with a wish for it. */
#define HBN_CLICKED 0
/** A double click. */
#define HBN_DBLCLK 5

/**
 * Draws the caption of a disabled button: the output procedure that buttons give to GrayStringA.
 *
 * @param record  The button's record.
 * @param length  Not read.
 * @return 1, or 0 for a null record.
 */
BOOL CALLBACK HBDrawText(HDC dc, LPARAM record, int length);
/** Window procedure of the button. */
LRESULT CALLBACK HButtWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
/** Message handler of the button, for use with HandleMsg at an offset of one word. */
LRESULT CALLBACK HButtMsgHandler(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault, void* record);

/* Grid definitions */

/** Read-only grid: no editor is ever shown. Style bit. */
#define HGS_READONLY 0x0001
/** No grid lines. Style bit. */
#define HGS_NOLINES 0x0002
/** Cells on the face brush. Style bit. */
#define HGS_FACEBACK 0x0004
/** Every second row on the stripe brush. Style bit. */
#define HGS_STRIPED 0x0008
/** The last row is the blank new-record row. Style bit. */
#define HGS_NEWROW 0x0010
/**
 * Row height and header height can be dragged: under HGS_ROWHEADERS in their strip only. With HGS_COLSIZE, so can the
 * width of that strip. Style bit.
 */
#define HGS_ROWSIZE 0x0020
/** Column widths can be dragged. Style bit. */
#define HGS_COLSIZE 0x0040
/** A row-header strip stands at the left. Style bit. */
#define HGS_ROWHEADERS 0x0080
/** A column-header strip stands at the top. Style bit. */
#define HGS_COLHEADERS 0x0100
/** VK_DELETE deletes the selected rows while the row header is current. Style bit. */
#define HGS_ROWDELETE 0x0200
/** The dialog keeps Tab. Style bit. */
#define HGS_NOTAB 0x0400
/** Selection and editor stay up without the focus. Style bit. */
#define HGS_KEEPSEL 0x0800
/** The grid has a column order map; Shift on the header of a selected column drags. Style bit. */
#define HGS_COLMAP 0x1000
/** Selection by whole rows. Style bit. */
#define HGS_ROWSELECT 0x2000
/** The selection never extends. Style bit. */
#define HGS_NOEXTEND 0x4000
/**
 * Without WS_VSCROLL, a navigator stands at the right: a scroll bar and buttons that act as Ctrl+Home, Ctrl+End and,
 * under HGS_NEWROW, Insert, after HGN_NAVIGATE. For the text of a button's tip the grid's window gets message 40 with
 * the id in wParam (4188 to 4191) and a buffer of 81 bytes in lParam; a host's subclass fills it and answers 1.
 * The grid sets WS_VSCROLL in the record that it is made with; one that is attached later needs both bits for the bar
 * to follow. Style bit.
 */
#define HGS_NAVIGATOR 0x8000

/** Unit mode in the low two bits of dwStyle2: all sizes are dialog units. */
#define HGX_DLGUNITS 0x0001
/** Bit of dwStyle2: a fourth navigator button, which only tells HGN_NAVEXTRA. */
#define HGX_EXTRABUTTON 0x0004

/** The column takes no space. Bit of HGField.wFlags. */
#define HFF_HIDDEN 0x0001
/** The column cannot be edited. Bit of HGField.wFlags. */
#define HFF_READONLY 0x0004
/** The cell stores the code (second pair) of a list, not the data. Bit of HGField.wFlags. */
#define HFF_CODE 0x0008

/** A cell of the row was written since the row was last handed to the row source. Bit of a row's flags. */
#define HGR_DIRTY 0x0001
/** The row was appended and is not known to the row source yet. Bit of a row's flags. */
#define HGR_NEW 0x0002
/** The row belongs to a scattered selection. Bit of a row's flags. */
#define HGR_SELECTED 0x0008

/** A grid definition with its rows. Made by HGridCreate, owned by the window that it is attached to. */
typedef struct HGridData {
    WORD    wVersion;      /**< 18506 for a new grid, or the version of its file. */
    DWORD   dwStyle;       /**< WS_ bits in the high word, HGS_ bits in the low. */
    DWORD   dwStyle2;      /**< HGX_ bits. */
    short   cFixedCols;    /**< Leading columns that do not scroll. */
    short   nRowHeight;    /**< Height of a row. */
    short   nMinRowHeight; /**< Lowest row height in pixels; 0 until the grid was scaled to a font. */
    short   nHdrWidth;     /**< Width of the row headers. */
    short   nHdrHeight;    /**< Height of one band of the column header. */
    WORD    cMinRows;      /**< Rows that the grid has at least when it is attached. */
    char*   pszTitle;      /**< Window text; owned; may be null. */
    HLList* pFields;       /**< Columns in their order: HGField pointers. */
    HLList* pRows;         /**< Rows; cbItem is the size of a row's data. */
    HLList* pFieldMap;     /**< Storage order of the columns, or null. */
    BYTE    fEndStop;      /**< Set by HGM_SETENDSTOP. */
    short   nHdrHeightDef; /**< Header height to which HGM_RESETSIZES returns. */
    short   nRowHeightDef; /**< Row height to which HGM_RESETSIZES returns. */
} HGridData;

/** One column. Made by HGFieldCreate, owned by the grid that it is added to. */
typedef struct HGField {
    WORD           wFlags;     /**< HFF_ bits; others are kept for the host. */
    short          nWidth;     /**< Width, at least 2. */
    short          nHeight;    /**< Height of the drop part of a combo or list cell. */
    short          cbSize;     /**< Bytes of the value in a row; 0: no value. */
    char           cClass;     /**< Data class. */
    char           cType;      /**< Data type. */
    char           cClass2;    /**< Data class of the code, or 0. */
    char           cType2;     /**< Data type of the code, or 0. */
    char           cKind;      /**< Cell control: e edit, l list, c combo, d combo list, k check, q drawn by the host. */
    DWORD          dwCtlStyle; /**< Window style of the cell control. */
    char*          pszTitle;   /**< Caption; owned; may be null. */
    char*          pszFormat;  /**< Format; owned; never null. */
    short          nOffset;    /**< Offset of the value in the row data. */
    ControlHeader* pCtl;       /**< Record of the cell control, or null. */
    signed char    nBand;      /**< Band on which the column lies, from 0. */
    BYTE           fBold;      /**< 1 after HGM_SETFIELDBOLD. */
    char*          pszName;    /**< The caption as given at creation; owned. */
} HGField;

/** A definition in the stash. */
typedef struct HGStash {
    void*      pLink;      /**< Next record. */
    DWORD      dwKey;      /**< First part of the key. */
    DWORD      dwReserved; /**< 0. */
    HGridData* pGrid;      /**< The definition; owned. */
    char       szName[13]; /**< Second part of the key, 12 characters at the most. */
    char       chFiller;   /**< 0. */
    BYTE       ofs[136];   /**< The caller's OFSTRUCT, or zeros. */
} HGStash;

/**
 * Makes a grid definition without columns.
 *
 * @param title       Window text; may be null.
 * @param style       WS_ and HGS_ bits.
 * @param style2      HGX_ bits.
 * @param fixedCols   Leading columns that do not scroll.
 * @param rowHeight, hdrWidth, hdrHeight  Pixels; negative: the defaults 20, 45, 20. Under HGX_DLGUNITS dialog units, and
 *                    the defaults are 160 divided by the height of the system's font, 22, and the first one again.
 * @param minRows     Rows that the grid has at least when it is attached to a window.
 * @return The definition, or null without memory.
 */
HGridData* WINAPI HGridCreate(const char* title, DWORD style, DWORD style2, WORD fixedCols, short rowHeight,
                              short hdrWidth, short hdrHeight, WORD minRows);
/** Frees a definition, its columns and their cell controls, and its rows. @return 1; 0 for null. */
int WINAPI HGridDestroy(HGridData* grid);
/** Removes all rows. @return 1; 0 for null. */
int WINAPI HGridEmpty(HGridData* grid);
/** Appends the columns and rows of src to dest and takes over its settings. @return 1; 0 if either is null. */
int WINAPI HGridCopy(HGridData* dest, HGridData* src);
/** @return A copy of a definition with its rows, or null. */
HGridData* WINAPI HGridDup(HGridData* src);
/** Compares two definitions (not their rows, dwStyle2 and bands). @return 1 if they differ, else 0. */
int WINAPI HGridChanged(HGridData* a, HGridData* b);
/**
 * Scales all sizes of a definition from the base units of one font to those of another.
 *
 * @param fromFont, toFont  Fonts; null: the system font; (HFONT)-1: dialog units, 4 by 8.
 * @return 1; 0 without base units, with nothing changed.
 */
int WINAPI HGridScale(HGridData* grid, HFONT fromFont, HFONT toFont);
/**
 * Makes a column.
 *
 * @param title      Caption; may be null.
 * @param flags      HFF_ bits.
 * @param width      Width in design units, at least 2.
 * @param height     Height of the drop part.
 * @param dataClass, dataType    The value's pair.
 * @param dataClass2, dataType2  The code's pair, or 0.
 * @param size       Bytes of a text value with its terminator; other classes know their size.
 * @param kind       Letter of the cell control, see HGField.cKind.
 * @param ctlStyle   Window style of the cell control.
 * @param format     Format; null: empty.
 * @param band       Band, from 0.
 * @return The column, or null without memory.
 */
HGField* WINAPI HGFieldCreate(const char* title, WORD flags, short width, WORD height, char dataClass, char dataType,
                              char dataClass2, char dataType2, WORD size, char kind, DWORD ctlStyle,
                              const char* format, BYTE band);
/** Frees a column that no grid owns. @return 1; 0 for null. */
int WINAPI HGFieldDestroy(HGField* field);
/** @return A copy of a column (its width passes the DPI scaling once more), or null. */
HGField* WINAPI HGFldDup(HGField* field);
/**
 * Inserts a column; rows keep their values.
 *
 * @param field     The column; the grid owns it from then on.
 * @param position  Its index; past the end it is appended.
 * @return Its index; -1 without memory or room in the row, and the column stays the caller's.
 */
int WINAPI HGInsertFld(HGridData* grid, HGField* field, short position);
/** Computes the offsets of all columns and the row size anew. */
void WINAPI HGFixOffsets(HGridData* grid);
/**
 * Gives a grid a column order map. Without HGS_COLMAP lookups go by the map from then on, but adding, inserting,
 * removing and moving columns don't keep it up.
 *
 * @return 1; 0 if it has one.
 */
int WINAPI HGCreateFldMap(HGridData* grid);

/*
 * Cells
 *
 * Columns and rows count from 0; rows are the loaded ones.
 */

typedef struct HGridCtl HGridCtl;

/**
 * Copies a cell's value.
 *
 * @param out  Receives the column's cbSize bytes as they are, also of a null cell. These are zeros where the library
 *             made it null, but not after HGSRC_CELL refused it, or where the host set the bit itself.
 * @return 1 if the cell holds a value; 0 if it is null or doesn't exist.
 */
int WINAPI HGGetCellData(HWND hwnd, int col, int row, void* out);
/**
 * Writes a cell as a user's entry would, and shows it if the cell is current. Host code runs inside.
 *
 * @param value  The value, cbSize bytes or a text; null makes the cell null.
 * @return 1 if the write went through; 0 if it was refused or the cell doesn't exist. After a veto of HGN_CELLCHANGED
 *         the value stays written and its row marked as changed, and it isn't repainted. After a refusal by HGSRC_CELL
 *         the value is the old one, but whether the cell is null is what was asked for.
 */
int WINAPI HGSetCellData(HWND hwnd, int col, int row, const void* value);
/** Writes the text of a cell. @return Its length; 0 for a cell that doesn't exist. */
int WINAPI HGGetCellText(HWND hwnd, int col, int row, char* out, int outSize);
/**
 * Parses a text by the column's type and writes it. In a column of lists or fields that stores codes, a text that the
 * list doesn't know is stored as the code of its last item: a host looks it up first. Host code runs inside.
 *
 * @return As HGSetCellData.
 */
int WINAPI HGSetCellText(HWND hwnd, int col, int row, const char* text);
/** As HGSetCellData, without showing the value in the editor of the current cell. */
int WINAPI HGSetCellString(HWND hwnd, int col, int row, const void* value);
/** Copies a cell's value to another row; a rowFrom out of range makes the target null. @return As HGSetCellData. */
int WINAPI HGCopyCellData(HWND hwnd, int col, int rowFrom, int rowTo);
/** @return 1 if the cell is null, else 0. */
int WINAPI HGIsCellNull(HWND hwnd, int col, int row);
/** @return 1 if the cell is null. @param ctl The grid's record. col and row must be valid. */
int WINAPI IsCellNull(HGridCtl* ctl, int col, int row);
/** @return Place of a column's value in a row's data; null if there is none. */
void* WINAPI HGOffsetPtr(HWND hwnd, int col, void* rowData);

/* Stash */

/** Makes the library's stash list; a host calls it once. @return The list. */
HLList* WINAPI HGCreateStash(void);
/** @return The stash list, or null. */
HLList* WINAPI HGGetStash(void);
/**
 * Puts a definition into the stash, which owns it from then on.
 *
 * @param key, name  The key; the first 12 characters of name count, without case.
 * @param ofs        An OFSTRUCT to keep, or null.
 * @return The entry's index, or -1 without a stash or memory, and the definition stays the caller's.
 */
int WINAPI StashGrid(HGridData* grid, DWORD key, const char* name, const OFSTRUCT* ofs);
/** Finds an entry. @param outIndex Receives its index, else 0; may be null. @return The record, or null. */
HGStash* WINAPI GetStashed(DWORD key, const char* name, int* outIndex);
/** Removes an entry and destroys its definition. @return 1; 0 if there is none. */
int WINAPI RemoveStashed(DWORD key, const char* name);
/** Keeps a word for the host. @return The word. */
DWORD WINAPI HGStashFld(DWORD value);
/** @return The word that HGStashFld keeps. */
DWORD WINAPI HGGetFldStash(void);

/* Grid files */

/** Reads or writes count bytes. @return 0 on success. */
typedef int(CALLBACK* HGTRANSFER)(void* context, void* buffer, int count);

/**
 * Writes a definition (not its rows) through a function.
 *
 * @param write    Gets the bytes, with context.
 * @param version  0x4847 to 0x484A; 0x484A is the present one.
 * @return 1; 0 for another version or a failed write.
 */
int WINAPI HGSave(HGTRANSFER write, void* context, int version, HGridData* grid);
/** Reads a definition through a function. @return The grid, with the columns read so far; null if it isn't one. */
HGridData* WINAPI HGLoad(HGTRANSFER read, void* context);
/**
 * Reads a definition from a file.
 *
 * @param name  File name; without a point in it, ".GRS" is appended. With the ending at most 119 characters: a longer
 *              one isn't opened.
 * @param ofs   Receives what OpenFile tells, zeros on failure; may be null.
 * @return The grid, or null.
 */
HGridData* WINAPI HGridLoad(const char* name, OFSTRUCT* ofs);

/* Grid window */

/* Row sources and part painters */
/** Fill buffer with a record. 0: there is no such record. */
#define HGSRC_FETCH 0
/** A changed row leaves the block. */
#define HGSRC_WRITEBACK 1
/** A row is to be inserted as this record. 0 refuses. */
#define HGSRC_INSERT 2
/** The record is to be deleted. 0 refuses. */
#define HGSRC_DELETE 3
/** The record has changed. Non-zero: stored. */
#define HGSRC_UPDATE 4
/** A cell is to be written: record has the column in its low word, the loaded row in its high word. Non-zero refuses. */
#define HGSRC_CELL 5
/** A record is to be appended. Non-zero: stored. */
#define HGSRC_APPEND 6
/** How many records are there? */
#define HGSRC_COUNT 7

/**
 * Supplies the records of a grid whose rows are a block of a larger set.
 *
 * @param buffer  A row's data; for HGSRC_CELL the new value, of the column's cbSize bytes; for HGSRC_COUNT null.
 */
typedef int(CALLBACK* HGROWSOURCE)(HWND hwnd, int operation, int record, void* buffer);
/**
 * Paints a part of the library's buttons.
 *
 * @param part      1 to 4: buttons of a combo. 5, 6, 7, 9: the navigator's to the first, last and new record, and the
 *                  fourth one. 8: the border of a combo with WS_EX_CLIENTEDGE, whose answer isn't looked at.
 * @param enabled, pressed  The state, 0 or non-zero.
 * @param reserved  Non-zero while the mouse is over a combo's button, and for part 8; 0 for the navigator's buttons.
 * @return Non-zero if it has painted; 0 leaves the button to paint itself.
 */
typedef int(CALLBACK* HGDRAWPART)(int part, HDC hdc, RECT* rect, int enabled, int pressed, int reserved);

/** A mouse button is down. Bit of HGridCtl.wFlags. */
#define HGC_MOUSEDOWN 0x0001
/** The current cell is shown. Bit of HGridCtl.wFlags. */
#define HGC_CELLSHOWN 0x0002
/** The bottom row of the page is partly visible. Bit of HGridCtl.wFlags. */
#define HGC_PARTIALROW 0x0004
/** A guide line is on the screen. Bit of HGridCtl.wFlags. */
#define HGC_XORLINE 0x0008
/** A column drag is under way. Bit of HGridCtl.wFlags. */
#define HGC_COLDRAG 0x0010
/** The editor is shown over the current cell. Bit of HGridCtl.wFlags. */
#define HGC_EDITORSHOWN 0x0020
/** An edit is under way: the focus is in the editor, or left the grid from there. Bit of HGridCtl.wFlags. */
#define HGC_INEDIT 0x0040
/** The selection is a range. Bit of HGridCtl.wFlags. */
#define HGC_RANGE 0x0080
/** The grid has a row source. Bit of HGridCtl.wFlags. */
#define HGC_VIRTUAL 0x0400
/** The next scroll sends no scroll notifications. Bit of HGridCtl.wFlags. */
#define HGC_QUIETSCROLL 0x4000
/** Rows of the range being dragged read as selected. Bit of HGridCtl.wFlags. */
#define HGC_SELECTING 0x8000

/** Record of a grid window, from WWM_GETSTATE. A host reads it and changes it by messages. */
struct HGridCtl {
    HWND        hWnd;         /**< The grid's window. */
    HWND        hParent;      /**< Gets the notifications. */
    DWORD       wId;          /**< Control id. */
    HFONT       hFont;        /**< Font; null: the default. */
    WORD        wFlags;       /**< HGC_ and CF_ bits. */
    HBRUSH      hBkBrush;     /**< Brush where no cell is; null: the library's. */
    WORD        nFirstCol;    /**< First column of the scrolling zone. */
    short       nTopRow;      /**< Top visible row among the loaded ones. */
    LONG        lRowBase;     /**< Record number of loaded row 0. */
    short       cPageRows;    /**< Rows that fit, at least 1. */
    WORD        nPropCol;     /**< Column proposed by the move under way. */
    WORD        nPropRow;     /**< Row proposed by the move under way, or concerned by a row notification. */
    short       nAnchorCol;   /**< Column of the selection anchor, -1 for all. */
    short       nAnchorRow;   /**< Row of the selection anchor, -1 for all. */
    WORD        nCurCol;      /**< Current column, 0xFFFF for the row header. */
    WORD        nCurRow;      /**< Current row, 0xFFFF for the column header. */
    HWND        hEditor;      /**< Cell control of the current column while it may be edited, or null. */
    void*       pRowMirror;   /**< Caller's copy of the current row's data, or null. */
    HGridData*  pData;        /**< Columns and rows. */
    short       cHeldRows;    /**< With a row source, rows that should stay loaded; else the row count. */
    LONG        nVScale;      /**< Records per unit of the vertical scroll bar. */
    DWORD       nVScrollPos;  /**< Vertical scroll position, in scroll units. */
    LONG        nHScrollPos;  /**< Horizontal scroll position in pixels. */
    LONG        nHScrollMax;  /**< Widest band in pixels, or 0 when all fits. */
    DWORD       nHPage;       /**< Width of the scrolling zone in pixels. */
    LONG        lTotalRows;   /**< Number of records. */
    BYTE        fTotalKnown;  /**< 1 once the owner has told lTotalRows. */
    HGROWSOURCE pfnRowSource; /**< The row source, or null. */
    HFONT       hBoldFont;    /**< Bold copy of hFont. */
    signed char cBands;       /**< Bands of a record, 1 to 5. */
    HWND        hNavScroll;   /**< Scroll bar of the navigator, or null. */
    HWND        hNavFirst;    /**< Navigator button 4188. */
    HWND        hNavLast;     /**< Navigator button 4189. */
    HWND        hNavNew;      /**< Navigator button 4190. */
    HWND        hNavExtra;    /**< Navigator button 4191. */
    HWND        hTips;        /**< Tip window, or null. */
    WORD        nSortCol;     /**< Column whose header shows the first sort mark, 0xFFFF for none. */
    WORD        nSortCol2;    /**< Column whose header shows the second sort mark, 0xFFFF for none. */
    HBRUSH      hNoEditBrush; /**< Brush for cells of read-only columns. */
};

/**
 * What a subclass of the grid gets to draw a cell of kind q: WM_SETFONT with this record in wParam, which it doesn't
 * hand on. The column's control isn't wrapped: a host that wants its edits stored sends WWM_CHILDFOCUS and
 * WWM_CHILDBLUR to the grid when the control gets and loses the focus.
 */
typedef struct HGDrawItem {
    const char* pszName; /**< The field's pszName. */
    const void* pValue;  /**< The cell's value, or null. */
    RECT        rc;      /**< The cell. */
    HDC         hDC;     /**< Where to paint. */
    COLORREF    crText;  /**< Text colour of the cell. */
} HGDrawItem;

#pragma pack(pop)

/** Window procedure of the class "HGrid". */
LRESULT CALLBACK HGridWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
/** Message handler of the class "HGrid", for use with HandleMsg at offset 0; record: one that it has made. */
LRESULT CALLBACK HGridMsgHandler(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault, void* record);
/** Repaints a range of cells; -1 names a header or all. @return 1. */
int WINAPI HGridInvalidateRange(HWND hwnd, int col1, int row1, int col2, int row2);
/** Repaints one cell; -1 names a header. @return 1, also for a cell out of view. */
int WINAPI HGridInvalidateCell(HWND hwnd, int col, int row);
/** Sets face brush and second brush of all grids; 0xFFFFFFFF: none. Shows at the next paint. */
int WINAPI SetGridBckgndColor(COLORREF colorA, COLORREF colorB);
/** As SetGridBckgndColor, and sets the third brush; 0xFFFFFFFF: none. @return 1. */
int WINAPI SetGridBckgndColors(COLORREF colorA, COLORREF colorB, COLORREF colorC);
/** Sets the brush of the headers of the current row and column; 0xFFFFFFFF: none, they are drawn raised. */
int WINAPI SetGridSelectColor(COLORREF color);
/** Sets the function that paints the library's buttons; null: they paint themselves. */
int WINAPI SetGridDrawPartFnc(HGDRAWPART function);
/** Switches the scaling of column widths by the screen's resolution on (non-zero) or off. */
int WINAPI SetGridAppDPIScaling(int flag);
/** Makes the library read the screen's resolution again at the next use. */
int WINAPI SetGridAppDPIChanged(void);
/** Sets the field brush of buttons, edits and lists; null: none. It stays the caller's. */
int WINAPI SetBkgndFocusBrush(HBRUSH brush);

/*
 * Grid messages
 *
 * c is a column index, r a row among the loaded ones, a packed cell has the column in its low word and
 * the row in its high word. "Default" means that the message goes on to DefWindowProcA, which gives 0.
 */

/** Gives hBkBrush. */
#define HGM_GETBKBRUSH 1124
/** wParam: brush, kept by the caller. lParam: non-zero repaints. Passed on to the cell controls. Gives the old brush. */
#define HGM_SETBKBRUSH 1125
/** Gives the number of bands. */
#define HGM_GETBANDS 1250
/** lParam: bands, 1 to 5. Columns beyond move to the last band. Gives 1, or 0 for a bad number. No repaint. */
#define HGM_SETBANDS 1251
/** wParam: position. Gives the column's band; 0 without such a column. */
#define HGM_GETFIELDBAND 1252
/** wParam: position. lParam: band. Gives 1; 0 for a band that the grid hasn't. */
#define HGM_SETFIELDBAND 1253
/**
 * wParam: non-zero refreshes. lParam: HGridData, owned by the grid from then on. Gives 1; 0 for a bad record, which
 * isn't taken, and where the host attaches yet another one meanwhile: this one is destroyed then. A new record shows
 * from its first row on; under a row source the view stays.
 */
#define HGM_SETDATA 1324
/** Gives the HGridData, which stays the grid's. */
#define HGM_GETDATA 1325
/**
 * Empties the grid and goes to its first cell. wParam: non-zero refreshes. Default. With a row source, changed records
 * are handed back, records are loaded anew from the first one on, and the grid refreshes in any case.
 */
#define HGM_RESET 1326
/** Takes a change of data over into layout, scroll bars and current cell. wParam: non-zero erases. Default. */
#define HGM_REFRESH 1329
/** Gives the height of one header band. */
#define HGM_GETHEADERHEIGHT 1334
/** wParam: height in pixels, negative becomes 0. lParam: non-zero refreshes. Default. */
#define HGM_SETHEADERHEIGHT 1335
/** Gives the width of the row headers. */
#define HGM_GETROWHDRWIDTH 1336
/** wParam: width in pixels, negative becomes 0. lParam: non-zero refreshes. Default. */
#define HGM_SETROWHDRWIDTH 1337
/** Gives the row height. */
#define HGM_GETROWHEIGHT 1338
/** wParam: height in pixels, bounded to 2 .. 2000. lParam: non-zero refreshes. Default. */
#define HGM_SETROWHEIGHT 1339
/** Gives the number of columns. */
#define HGM_GETCOLCOUNT 1340
/** Gives the number of loaded rows. */
#define HGM_GETROWCOUNT 1341
/** Gives the first column of the scrolling zone. */
#define HGM_GETFIRSTCOL 1342
/** wParam: x. Scrolls without notifications by x less the position less the fixed columns. Gives nFirstCol. */
#define HGM_SETFIRSTCOL 1343
/** Gives the record number of the top row. */
#define HGM_GETTOPRECORD 1344
/** wParam, lParam: the higher of both is the record. Scrolls to it without notifications. Gives the new top record. */
#define HGM_SETTOPRECORD 1345
/** Gives the number of fixed columns. */
#define HGM_GETFIXEDCOLS 1346
/** wParam: fixed columns, at most all. Refreshes. Default. */
#define HGM_SETFIXEDCOLS 1347
/** lParam: pointer to a DWORD, or 0. Gives the packed anchor of the selection. */
#define HGM_GETANCHOR 1348
/** lParam: packed cell that becomes the anchor; the current cell stays. Default. */
#define HGM_SETANCHOR 1349
/** lParam: pointer to a DWORD, or 0. Gives the packed current cell. */
#define HGM_GETCURSOR 1350
/** wParam: non-zero extends the selection. lParam: packed cell to move to; host code runs inside. Default. */
#define HGM_SETCURSOR 1351
/** Gives wFlags, without the bits 0x0300, which are the library's own. */
#define HGM_GETFLAGS 1352
/** wParam: 0 clears, else sets. lParam: mask on wFlags; the bits 0x0300 stay as they are. Default. */
#define HGM_SETFLAGS 1353
/** wParam: size. lParam: buffer. Copies the grid's title. Gives the count copied. */
#define HGM_GETTITLE 1354
/** lParam: text, copied; null gives 0. Default. */
#define HGM_SETTITLE 1355
/**
 * lParam: HGField, owned by the grid from then on. Gives the index at which it stands; -1 without memory or room in
 * the row, and the column stays the caller's.
 */
#define HGM_ADDFIELD 1356
/** wParam: c. Gives 1; 0 for a bad column. */
#define HGM_DELETEFIELD 1357
/**
 * wParam: c. lParam: HGField, owned by the grid from then on. Gives its index; -1 without memory or room in the row,
 * and the column stays the caller's.
 */
#define HGM_INSERTFIELD 1358
/** wParam: from. lParam: to. Gives the new index, or -1. */
#define HGM_MOVEFIELD 1359
/**
 * wParam: non-zero marks the row new. lParam: row data, or 0. Gives the row index + 1; below 1 on failure.
 * Under HGS_NEWROW a blank row comes before the entry row, and the data go into the entry row itself. A row source is
 * offered a blank record, without the data.
 */
#define HGM_ADDROW 1360
/** wParam: r. Deletes without notification. Gives 1, or 0. */
#define HGM_DELETEROW 1361
/** wParam: r. lParam: row data, or 0. Gives the new index, or -1. */
#define HGM_INSERTROW 1362
/** wParam: from. lParam: to. Moves a row in the list. Gives the new index, or -1. */
#define HGM_MOVEROW 1363
/** Gives the record number of loaded row 0. */
#define HGM_GETROWBASE 1364
/** wParam, lParam: the higher of both becomes the row base. Default. */
#define HGM_SETROWBASE 1365
/** lParam: buffer for the current row's data. Gives 1; 0 without a buffer or a current row. */
#define HGM_READCURROW 1368
/** lParam: column title. Gives its index, or -1. */
#define HGM_FINDFIELD 1370
/** lParam: array of int, one for each column. Gives 1; 0 without HGS_COLMAP. */
#define HGM_GETCOLORDER 1371
/** lParam: array of int, one for each column. Reorders the columns. Gives 1; 0 without HGS_COLMAP. */
#define HGM_SETCOLORDER 1372
/** Gives the row source, or 0. */
#define HGM_GETROWSOURCE 1373
/** lParam: HGROWSOURCE, or 0. Empties the grid and loads from the source. Gives the old function. */
#define HGM_SETROWSOURCE 1374
/** Gives the number of records. */
#define HGM_GETTOTAL 1375
/**
 * lParam: number of records; 0: as many as are loaded. Once a number was told, the source isn't asked for it until
 * HGM_RESET. Gives 1; 0 without a row source.
 */
#define HGM_SETTOTAL 1376
/** Gives the number of rows that should stay loaded. */
#define HGM_GETHELD 1377
/** lParam: rows that should stay loaded. Gives the number in force; 0 without a row source. */
#define HGM_SETHELD 1378
/** wParam: 0 clears, else sets. lParam: mask on the stored style word; GWL_STYLE stays. Gives 1. */
#define HGM_SETSTYLEBITS 1380
/** wParam: c. Gives its place in the storage order, or -1. */
#define HGM_COLTOPOS 1381
/** wParam: position. Gives the column there, or -1. */
#define HGM_POSTOCOL 1382
/** lParam: record. Gives its loaded row, or -1. */
#define HGM_RECORDTOROW 1383
/** Gives the packed proposed cell. */
#define HGM_GETPROPOSED 1384
/** lParam: packed cell, bounded to the grid. Redirects the move of HGN_MOVING and HGN_EXTENDING. Gives 1. */
#define HGM_SETPROPOSED 1385
/** Gives the horizontal scroll position in pixels. */
#define HGM_GETHPOS 1386
/** Gives the vertical scroll position in scroll units. */
#define HGM_GETVPOS 1387
/** wParam: x in pixels. Scrolls without notifications. Gives the new position. */
#define HGM_SETHPOS 1388
/** wParam: position in scroll units. Scrolls without notifications. Gives the new position. */
#define HGM_SETVPOS 1389
/** Gives the highest vertical position in scroll units. */
#define HGM_GETVMAX 1390
/** Gives the widest band in pixels, or 0 when all fits. */
#define HGM_GETHMAX 1391
/** wParam: places in the array. lParam: array of int for the selected rows, ascending. Gives how many were stored. */
#define HGM_GETSELROWS 1392
/** Gives the number of selected rows. */
#define HGM_GETSELCOUNT 1393
/** wParam: r. Toggles the row's selection as a Ctrl-click does. Gives the new state. */
#define HGM_TOGGLEROW 1394
/** Acts as Ctrl+Home. Default. */
#define HGM_KEYFIRST 1395
/** Acts as Ctrl+End. Default. */
#define HGM_KEYLAST 1396
/** Acts as Insert. Default. */
#define HGM_KEYNEW 1397
/** Acts as Up. Default. */
#define HGM_KEYUP 1398
/** Acts as Down. Default. */
#define HGM_KEYDOWN 1399
/** wParam: r. Gives the row's flags (HGR_); default for a bad row. */
#define HGM_GETROWFLAGS 1404
/** wParam: r. lParam: low word 0 clears, else sets; high word mask. Gives the new flags; default for a bad row. */
#define HGM_SETROWFLAGS 1405
/** wParam: r. lParam: buffer for the row's data. Gives 1; 0 for a bad row or no buffer. */
#define HGM_READROW 1406
/** wParam: r. lParam: row data. Gives 1; 0 for a bad row or no data. */
#define HGM_WRITEROW 1407
/** Gives the buffer that HGM_SETROWMIRROR set. */
#define HGM_GETROWMIRROR 1408
/** lParam: buffer that follows the current row's data, or 0; kept by the caller. */
#define HGM_SETROWMIRROR 1409
/** Gives the bytes of a row's data. */
#define HGM_GETROWSIZE 1410
/** wParam: r. Gives 1 if the row is selected, else 0. */
#define HGM_ISROWSELECTED 1411
/** lParam: c that shows the first sort mark; 0xFFFF for none. Gives 1. */
#define HGM_SETSORTCOL 1412
/** lParam: c that shows the second sort mark; 0xFFFF for none. Gives 1. */
#define HGM_SETSORTCOL2 1413
/** lParam: record to move to. Default. */
#define HGM_GOTORECORD 1414
/** Computes page, ranges and scroll bars anew. Gives 1. */
#define HGM_RECALC 1415
/** wParam: c in the low word; high word 0 descending. lParam: array of DWORD sorted along, or 0. Default. */
#define HGM_SORT 1422
/** lParam: r in the high word. Gives the address of the row's data, or 0. */
#define HGM_GETROWPTR 1423

/*
 * Grid messages for columns by position
 *
 * wParam is the position. Without such a column they give 0.
 */

/** Gives the window of the cell control, or 0. */
#define HGM_GETFIELDCHILD 1424
/** Gives the style of the cell control. */
#define HGM_GETFIELDSTYLE 1425
/** Gives the letter of the cell control. */
#define HGM_GETFIELDKIND 1426
/** Gives the second data class. */
#define HGM_GETFIELDCLASS2 1427
/** Gives the second data type. */
#define HGM_GETFIELDTYPE2 1428
/** Gives the data class. */
#define HGM_GETFIELDCLASS 1429
/** Gives the bytes of a value. */
#define HGM_GETFIELDSIZE 1430
/** Gives the data type. */
#define HGM_GETFIELDTYPE 1431
/** lParam: buffer of at least HGM_GETFIELDFORMATLEN + 1 bytes. Gives 1. */
#define HGM_GETFIELDFORMAT 1432
/** lParam: format, copied and passed on to the cell control; null changes nothing. Gives 1. */
#define HGM_SETFIELDFORMAT 1433
/** Gives the length of the format. */
#define HGM_GETFIELDFORMATLEN 1434
/** lParam: buffer of at least HGM_GETFIELDTITLELEN + 1 bytes. Gives 1. */
#define HGM_GETFIELDTITLE 1435
/** Gives the length of the title. */
#define HGM_GETFIELDTITLELEN 1436
/** lParam: title, copied. Gives 1. */
#define HGM_SETFIELDTITLE 1437
/** Gives the width in design units. */
#define HGM_GETFIELDWIDTH 1438
/** lParam: width in design units, bounded to 2 .. 2000. Gives 1. */
#define HGM_SETFIELDWIDTH 1439
/** Gives the drop height. */
#define HGM_GETFIELDDROP 1440
/** lParam: drop height. Gives 1. */
#define HGM_SETFIELDDROP 1441
/** Gives the flags (HFF_). */
#define HGM_GETFIELDFLAGS 1442
/** lParam: low word 0 clears, else sets; high word mask. Gives 1. */
#define HGM_SETFIELDFLAGS 1443
/** Gives the offset of the value in a row's data. */
#define HGM_GETFIELDOFFSET 1446
/** Gives 0. */
#define HGM_GETFIELDRESERVED 1447

/** wParam: HDC. Asks the grid's parent for the background of a cell control. Gives its brush. */
#define HGM_CTLCOLOR 1448
/** wParam: position. Shows the column's cell control in bold. Gives 1; 0 without a bold font. */
#define HGM_SETFIELDBOLD 1449
/** wParam: low byte non-zero: moves down stop at the last record. Default. */
#define HGM_SETENDSTOP 1450
/** Row and header height go back to their defaults. lParam: non-zero refreshes. Default. */
#define HGM_RESETSIZES 1451
/** wParam: position. lParam: buffer of at least HGM_GETFIELDNAMELEN + 1 bytes. Gives 1. */
#define HGM_GETFIELDNAME 1452
/** wParam: position. Gives the length of the name. */
#define HGM_GETFIELDNAMELEN 1453
/** wParam: packed cell. lParam: buffer of 256 bytes. Gives the length of the text. */
#define HGM_GETCELLTEXT 1454
/** wParam: first column to look at. lParam: title. Gives the next visible column of that title, or -1. */
#define HGM_FINDFIELDFROM 1455

/*
 * Grid notifications
 *
 * WM_COMMAND to hParent, with the grid's id in the low word of wParam, the code in the high word, and the grid's
 * window in lParam.
 */

/** The grid has got the focus. */
#define HGN_SETFOCUS 1
/** The focus has left the grid and its cell controls. */
#define HGN_KILLFOCUS 2
/** The current cell has changed. */
#define HGN_MOVED 3
/** A double click, on a cell after the move to it, or on the cell control. */
#define HGN_DBLCLK 4
/** The grid is being destroyed; its rows are still there. */
#define HGN_DESTROY 5
/** The right button went down. */
#define HGN_RBUTTONDOWN 6
/** A scroll asks for rows above record 0. */
#define HGN_ABOVETOP 15
/** A scroll asks for rows beyond the end; the parent may add some. */
#define HGN_BELOWEND 16
/** A new-record row has come into being: the proposed row. What is written into an entry row meanwhile presets it. */
#define HGN_NEWROW 17
/** The current row has changed, after HGN_MOVED. */
#define HGN_ROWCHANGED 18
/** The proposed cell was written. A veto keeps the value but makes the write fail. */
#define HGN_CELLCHANGED 19
/** The proposed row is about to be deleted by the user. */
#define HGN_ROWDELETING 20
/** Columns were moved by dragging. */
#define HGN_COLSMOVED 21
/** Row height or header height was dragged. */
#define HGN_HEIGHTCHANGED 22
/** A width was dragged. */
#define HGN_WIDTHCHANGED 23
/** Before a move to the proposed cell, which HGM_SETPROPOSED may change. */
#define HGN_MOVING 24
/** Before a move that extends the selection; as HGN_MOVING. */
#define HGN_EXTENDING 25
/** The grid has scrolled across, or was asked to and stands at its edge. */
#define HGN_HSCROLLED 32
/** The grid has scrolled down or up. */
#define HGN_VSCROLLED 33
/** The width to scroll over was set. */
#define HGN_HRANGE 34
/** Page and totals are fresh. */
#define HGN_LAYOUT 35
/** The cell control has handed its value over. */
#define HGN_EDITDONE 36
/** The cell control has got the focus. */
#define HGN_EDITFOCUS 37
/** Sent to GetParent before a navigator or vertical scroll step; a non-zero answer cancels it. */
#define HGN_NAVIGATE 38
/** The fourth navigator button was pressed. */
#define HGN_NAVEXTRA 39
/** The cell control has lost the focus. */
#define HGN_EDITBLUR 41
/** The drop window of the cell control has opened. */
#define HGN_DROPOPEN 42
/** The drop window of the cell control has closed. */
#define HGN_DROPCLOSE 43
/** An item of the drop window was picked. */
#define HGN_DROPPICK 44
/** The value of the cell control has changed. */
#define HGN_CHILDCHANGE 45

/*
 * Edit control
 *
 * The typed single-line edit, of the classes "HEdit" and "HEdit_SS". It takes some messages of the platform's edits in
 * its own way:
 *
 * - `EM_LIMITTEXT`, for class s: at most wParam characters, and a longer text is cut; 0 or less takes the limit away and
 *   cuts nothing, and HEM_GETLIMIT begins again with 32, or with the length of a longer text. Gives 1; -1 for another
 *   class; -5 without memory.
 * - `EM_UNDO`, `WM_UNDO`: the text is rebuilt from the value, so that typing which isn't committed is lost, and the
 *   caret goes to the start. There is no other step back. They give 1, and so does `EM_CANUNDO` at any time.
 * - `EM_SETRECT`, `EM_SETRECTNP`: change nothing and give the brush of HEM_GETFOCUSBRUSH. HEM_SETRECT sets the area.
 * - `EM_GETMODIFY`: commits where WWM_GETCHANGED does, which is with the focus and text that isn't committed, unless
 *   CF_CHANGED is set. The answer is the default's.
 */

/** Display form centred. Style bit. */
#define HES_CENTER 0x0001
/** Display form right-aligned. Style bit. */
#define HES_RIGHT 0x0002
/** Typed characters become upper case. Style bit. */
#define HES_UPPERCASE 0x0008
/** Typed characters become lower case. Style bit. */
#define HES_LOWERCASE 0x0010
/** Every character shows as the password character; no cut, no copy. Style bit. */
#define HES_PASSWORD 0x0020
/** The text may be wider than the field. Style bit. */
#define HES_AUTOHSCROLL 0x0080
/**
 * The selection shows without the focus. The focus doesn't select all either, and EM_SETSEL with 0 and 0xFFFE, by which
 * the library selects all, does nothing and gives 0. Style bit.
 */
#define HES_KEEPSEL 0x0100
/** The control paints a frame of its own. Style bit. */
#define HES_FRAME 0x0200
/** A brush of its own while focused. Style bit. */
#define HES_FOCUSBRUSH 0x0400
/** Edit form right-aligned. Style bit. */
#define HES_EDITRIGHT 0x0800
/** WM_GETDLGCODE asks for all keys. Style bit. */
#define HES_ALLKEYS 0x1000
/** No typing, cut or paste. Style bit. */
#define HES_READONLY 0x2000
/** Deleting all text makes the value null. Style bit. */
#define HES_CLEARALL 0x4000
/** Neither caret nor selection. Style bit. */
#define HES_STATIC 0x8000

/** The text shows the display form. Bit of HEM_GETFLAGS. */
#define HEF_DISPLAY 0x0002
/** The text is right-aligned now. Bit of HEM_GETFLAGS. */
#define HEF_RIGHT 0x0004
/** The text is centred now. Bit of HEM_GETFLAGS. */
#define HEF_CENTER 0x0008
/** A typed character is replacing a selection. Bit of HEM_GETFLAGS. */
#define HEF_REPLACING 0x0010
/** The length of the text is limited. Bit of HEM_GETFLAGS. */
#define HEF_LIMITED 0x0020
/** The text was changed and isn't committed yet. Bit of HEM_GETFLAGS. */
#define HEF_DIRTY 0x0040
/** The text shows a negative value. Bit of HEM_GETFLAGS. */
#define HEF_NEGATIVE 0x0080
/** The next WM_CHAR is ignored. Bit of HEM_GETFLAGS. */
#define HEF_SKIPCHAR 0x0100
/** The thumb of the scroll bar is being dragged. Bit of HEM_GETFLAGS. */
#define HEF_TRACKING 0x0200
/** The control has the focus. Bit of HEM_GETFLAGS. */
#define HEF_FOCUS 0x0400

/** Checks a value of an edit control. @return 0 to accept it. */
typedef int(CALLBACK* HEVALIDATE)(HWND hwnd, int id, void* data);

/**
 * wParam: size, for a text. lParam: buffer. Commits if the control has the focus, then copies the value. Gives the
 * bytes copied; 0 for the null value.
 */
#define HEM_GETDATA 1064
/** lParam: value, or 0 for null. Gives 1; -5 without memory. */
#define HEM_SETDATA 1065
/** lParam: RECT that receives the text area. Gives 1; -2 for null. */
#define HEM_GETRECT 1066
/**
 * wParam: non-zero rebuilds the text from the value, so that typing which isn't committed is lost. lParam: RECT of the
 * text area, or 0 for the client area. Gives 1.
 */
#define HEM_SETRECT 1067
/** Gives the most characters of the text. */
#define HEM_GETLIMIT 1068
/** Gives the overwrite mode. */
#define HEM_GETOVERWRITE 1069
/** wParam: overwrite mode of all edit controls. Gives 1. */
#define HEM_SETOVERWRITE 1070
/** Gives the password character. */
#define HEM_GETPASSWORDCHAR 1071
/** wParam: password character. Gives 1; -3 for 0. */
#define HEM_SETPASSWORDCHAR 1072
/** Gives the characters scrolled off. */
#define HEM_GETSCROLL 1073
/** wParam: characters to scroll off. Gives 1. */
#define HEM_SETSCROLL 1074
/**
 * wParam: non-zero commits. lParam: with wParam, 0 keeps the text as it is. Gives 0 for success with wParam. While the
 * host is told of a commit, or validates for it, there is no other one, and the answer is 0.
 */
#define HEM_COMMIT 1077
/** Gives the HEVALIDATE, or 0. */
#define HEM_GETVALIDATOR 1078
/** lParam: HEVALIDATE, or 0. Gives 1. */
#define HEM_SETVALIDATOR 1079
/** Gives the validator's answer; -1 without one. */
#define HEM_VALIDATE 1080
/** wParam: size. lParam: buffer for the selected text. Gives 1. */
#define HEM_GETSELTEXT 1081
/** lParam: value that receives the upper bound. Gives 1; 0 if the class has no bounds. */
#define HEM_GETMAX 1083
/**
 * lParam: upper bound as a value, or 0 for none. Gives 0. Bounds of dates and times belong into the window text: one set
 * here is no day number, and a commit takes every date for one above it.
 */
#define HEM_SETMAX 1084
/** lParam: value that receives the lower bound. Gives 1; 0 if the class has no bounds. */
#define HEM_GETMIN 1085
/** lParam: lower bound as a value, or 0 for none. Gives 0. Not for dates and times: see HEM_SETMAX. */
#define HEM_SETMIN 1086
/** Takes the focus away and gives it back. Gives 1. */
#define HEM_REFOCUS 1087
/** wParam: 0 editable, 1 read-only, 2 static. Gives 1. */
#define HEM_SETREADONLY 1088
/** Gives the background brush. */
#define HEM_GETBRUSH 1124
/** wParam: background brush, kept by the caller. Gives the old one. */
#define HEM_SETBRUSH 1125
/** wParam: size. lParam: buffer for the format, all its sections. Gives the count copied. */
#define HEM_GETFORMAT 1126
/**
 * wParam: non-zero rebuilds the text from the value, so that typing which isn't committed is lost. lParam: format; what
 * the null value shows stands behind its first semicolon, in classes n, c and b behind its second one. Gives 1; -2 for
 * null; 0 for class s; -5 without memory, and then the old format stays.
 */
#define HEM_SETFORMAT 1127
/** Gives the brush used while focused. */
#define HEM_GETFOCUSBRUSH 1128
/** wParam: brush used while focused. Gives the old one. */
#define HEM_SETFOCUSBRUSH 1129
/** wParam: 0 text colour, else colour of negative values. Gives it. */
#define HEM_GETCOLOR 1130
/** wParam: 0 text colour, else colour of negative values. lParam: COLORREF. Gives 1. */
#define HEM_SETCOLOR 1131
/** Gives the data class. */
#define HEM_GETCLASS 1132
/** Gives the bytes of the value. */
#define HEM_GETDATASIZE 1133
/** Gives the data type. */
#define HEM_GETTYPE 1134
/**
 * wParam: non-zero takes the value from the buffer, 0 writes it there. lParam: buffer that is linked to the value from
 * now on, kept by the caller; 0 ends the link and makes the value null. A commit and HEM_SETDATA write to the buffer,
 * and the value is read from it whenever the text is rebuilt. For texts they write as much as HEM_GETDATASIZE says at
 * that time, and a text without a limit grows: one that is linked needs a limit, by EM_LIMITTEXT or by digits in the
 * window text. Gives 1.
 */
#define HEM_LINKDATA 1136
/** Gives the HEF_ and CF_ bits. */
#define HEM_GETFLAGS 1141
/** wParam: HEF_ and CF_ bits. lParam: non-zero sets them, 0 clears them. Gives 1. */
#define HEM_SETFLAGS 1142
/** Gives the address of the text. */
#define HEM_GETTEXTPTR 1153
/** Gives the address of the format, all its sections. */
#define HEM_GETFORMATPTR 1154

/** The control has got the focus. */
#define HEN_SETFOCUS 0x100
/** Enter. */
#define HEN_RETURN 0x101
/** Esc, and after HEN_HELP. */
#define HEN_ESCAPE 0x102
/** Tab. */
#define HEN_TAB 0x107
/** Shift+Tab. */
#define HEN_BACKTAB 0x108
/** A double click. */
#define HEN_DBLCLK 0x10C
/** F1. */
#define HEN_HELP 0x10D
/** The focus has left. */
#define HEN_KILLFOCUS 0x200
/** The text has changed. */
#define HEN_CHANGE 0x300
/** The text is about to be shown changed. */
#define HEN_UPDATE 0x400
/** A text of limited length is full. */
#define HEN_MAXTEXT 0x501
/** The text has scrolled. */
#define HEN_HSCROLL 0x601
/** The text did not parse or validate. A veto restores the old value. */
#define HEN_BADINPUT 0x602
/** The value is below the lower bound. A veto keeps it. */
#define HEN_BELOWMIN 0x603
/** The value is above the upper bound. A veto keeps it. */
#define HEN_ABOVEMAX 0x604

/** Window procedure of the classes "HEdit" and "HEdit_SS". */
LRESULT CALLBACK HEditWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
/** Message handler of the edit classes, for use with HandleMsg at offset 0. */
LRESULT CALLBACK HEditMsgHandler(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault, void* record);
/** Installs a value in an edit control. @param data A value of its type, or null. @return 1; -2 for null ctl; -5. */
int WINAPI HEditSetData(void* ctl, const void* data);
/** Reads a window text into an edit control's record. @return Non-zero if its buffers could be had. */
int WINAPI HEParseWinText(void* ctl, const char* text);
/**
 * Reads a bounds group "|minimum;maximum;third|" at *pText, which moves behind it. The text is modified: a group with
 * fewer than two semicolons ends the text behind it at the first one there.
 *
 * @param pMin, pMax, pThird  Receive the values; may be null. Those of class c receive nothing.
 * @return 1 for a minimum, 2 for a maximum, 4 for a third value, added up; 0 without a group.
 */
int WINAPI HEFindMinMaxInfo(char** pText, double* pMin, double* pMax, double* pThird, char dataClass, char dataType);
/** Holds an edit control's value between its bounds. */
void WINAPI BoundMinMax(void* ctl);

/*
 * List control
 *
 * The class "HList": items of a typed value and, if wanted, a typed code, in one column or several, or as a field of one
 * row. The window text is "%", class and type of the data, optionally "%", class and type of the code, and the format.
 */

/** A field of one row that shows the current item. Style bit. */
#define HLS_FIELD 0x0001
/** Items stay sorted by data. Style bit. */
#define HLS_SORTDATA 0x0002
/** Items stay sorted by code, unless HLS_SORTDATA is given. Style bit. */
#define HLS_SORTCODE 0x0004
/** A click toggles its item. Style bit. */
#define HLS_MULTISEL 0x0008
/** A sunken border of the list's own. Style bit. */
#define HLS_3DBORDER 0x0010
/** A brush of its own while focused. Style bit. */
#define HLS_FOCUSBRUSH 0x0020
/** The parent measures and draws items and is told of deletions, as with an owner-drawn list box. Style bit. */
#define HLS_OWNERDRAW 0x0040
/** Tab characters of an item jump to the tab stops. Style bit. */
#define HLS_TABS 0x0080
/** A partly shown last row counts as a row, and the height isn't trimmed to whole rows. Style bit. */
#define HLS_NOINTEGRAL 0x0100
/** Items run down and then to the next column; the list scrolls across. Style bit. */
#define HLS_MULTICOLUMN 0x0200
/** Ranges and single items by Shift, Ctrl and the mouse. Style bit. */
#define HLS_EXTSEL 0x0800
/** WM_GETDLGCODE asks for all keys. Style bit. */
#define HLS_WANTKEYS 0x1000
/** The current item is held by its code. Only for codes of class n or type l. Style bit. */
#define HLS_CODECURRENT 0x2000
/** No scroll bar is driven. Style bit. */
#define HLS_NOSCROLL 0x4000
/** The row under the mouse is marked. Style bit. */
#define HLS_HOTTRACK 0x8000

/** The mouse range under way selects, or else deselects. Bit of ControlHeader.wFlags. */
#define HLF_DRAGSET 0x0001
/** The focus rectangle is on the screen. Bit of ControlHeader.wFlags. */
#define HLF_FOCUSRECT 0x0002
/** The column width was set by HLM_SETCOLUMNWIDTH. Bit of ControlHeader.wFlags. */
#define HLF_FIXEDCOLUMN 0x0004
/** The current item is the selection. Bit of ControlHeader.wFlags. */
#define HLF_SINGLESEL 0x0010
/** The left button went down on the list and isn't up yet. Bit of ControlHeader.wFlags. */
#define HLF_TRACKING 0x0020
/** Neither painting nor layout. Bit of ControlHeader.wFlags. */
#define HLF_NOREDRAW 0x0040
/** The items are somebody else's and stay when the list goes. Bit of ControlHeader.wFlags. */
#define HLF_SHAREDLIST 0x0080
/** The last row, or in several columns the last column, shows in part. Bit of ControlHeader.wFlags. */
#define HLF_PARTIAL 0x0100
/** A font has come, so the height may be trimmed to whole rows. Bit of ControlHeader.wFlags. */
#define HLF_FONTSET 0x0200
/** The last value shown was negative. Bit of ControlHeader.wFlags. */
#define HLF_NEGATIVE 0x0400
/** The left button is down, as in HLF_TRACKING. Bit of ControlHeader.wFlags. */
#define HLF_MOUSEDOWN 0x8000

/** Modes of selecting: deselect. */
#define HLSEL_CLEAR 0
/** Select. */
#define HLSEL_SET 1
/** The other state. */
#define HLSEL_TOGGLE 2

/** Which items are meant: all. */
#define HLI_ALL 0
/** The first item with each of n data values: packed, or for texts an array of pointers. */
#define HLI_BYDATA 1
/** The first item with each of n codes, likewise; none in a list without codes. */
#define HLI_BYCODE 2
/** The items at n ascending indexes, an array of int. */
#define HLI_BYINDEX 4
/** The selected ones. */
#define HLI_SELECTED 8
/** The others. */
#define HLI_UNSELECTED 16

/*
 * Messages of the list. c is an index; data and code are pointers to values of the list's types. Of a list
 * box's messages, LB_ADDSTRING (384, lParam: data) and LB_GETITEMHEIGHT (417) are answered.
 */

/** Gives the background brush, or null. */
#define HLM_GETBKBRUSH 1124
/** wParam: brush, or null to ask the parent. lParam: repaint. Gives the old one. */
#define HLM_SETBKBRUSH 1125
/** wParam: bytes of lParam, a buffer. Copies the format and gives its length. */
#define HLM_GETFORMAT 1126
/** wParam: repaint. lParam: format. Gives 1; 0 for texts, which have none, or a null pointer. */
#define HLM_SETFORMAT 1127
/** Gives the brush while focused, or null. */
#define HLM_GETFOCUSBRUSH 1128
/** wParam: brush. lParam: repaint. Gives the old one. */
#define HLM_SETFOCUSBRUSH 1129
/** wParam: 0 the text colour, else that of negative values. Gives it. */
#define HLM_GETCOLOR 1130
/** wParam: as HLM_GETCOLOR. lParam: colour. Repaints. Gives 1. */
#define HLM_SETCOLOR 1131
/** Gives the class letter of the data. */
#define HLM_GETDATACLASS 1132
/** wParam: c. Gives the bytes of its data, for a text its length. */
#define HLM_GETDATASIZE 1133
/** Gives the type letter of the data. */
#define HLM_GETDATATYPE 1134
/** Gives the buffer that mirrors the current item's data, or null. */
#define HLM_GETDATALINK 1135
/** wParam, lParam: as the arguments of HLSetDataLink, the flag first. Gives 1. */
#define HLM_SETDATALINK 1136
/** Gives the number of items. */
#define HLM_GETCOUNT 1174
/** HLEmptyList. */
#define HLM_EMPTY 1175
/** wParam: c. HLDeleteItem. */
#define HLM_DELETEITEM 1184
/** wParam: HLSEL_ mode. lParam: c in the low word. HLSelectItem. 1237 is a second number of it. */
#define HLM_SELECTITEM 1185
/** wParam: c. lParam: out. HLGetData. */
#define HLM_GETDATA 1186
/** wParam: c. lParam: out. HLGetCode. */
#define HLM_GETCODE 1187
/** wParam: c. lParam: a buffer of 128 bytes. Copies the item as it shows and gives its length, or -1 for an empty one. */
#define HLM_GETITEMTEXT 1188
/** wParam: c. Gives the length of what HLM_GETITEMTEXT copies, or -1 for an empty one. */
#define HLM_GETITEMTEXTLEN 1189
/** wParam: c. lParam: code. HLSetCode. */
#define HLM_SETCODE 1190
/** wParam: c to start from. lParam: text. Gives the item with that text, or else one that begins so; -1 for none. */
#define HLM_FINDTEXT 1192
/** As HLM_FINDTEXT; the item, or none, becomes the current one. Gives it. */
#define HLM_SELECTTEXT 1193
/** lParam: data. HLAddItem. */
#define HLM_ADDITEM 1199
/** wParam: c. lParam: data. HLInsertItem. */
#define HLM_INSERTITEM 1200
/** wParam: c to start from. lParam: data. HLFindData. */
#define HLM_FINDDATA 1201
/** wParam: HLSEL_ mode. lParam: data. HLSelectData. */
#define HLM_SELECTDATA 1202
/** wParam: bytes of a text buffer, or 0. lParam: out. The current item's data: 1 if something was copied, else 0. */
#define HLM_GETCURDATA 1203
/** Gives the class letter of the code, or 0. */
#define HLM_GETCODECLASS 1204
/** Gives the buffer that mirrors the current item's code, or null. */
#define HLM_GETCODELINK 1205
/** wParam, lParam: as the arguments of HLSetCodeLink, the flag first. Gives 1. */
#define HLM_SETCODELINK 1206
/** wParam: c. Gives the bytes of its code, for a text its length; 0 without codes. */
#define HLM_GETCODESIZE 1207
/** Gives the type letter of the code, or 0. */
#define HLM_GETCODETYPE 1208
/** wParam: c to start from. lParam: code. HLFindCode. */
#define HLM_FINDCODE 1209
/** wParam: HLSEL_ mode. lParam: code. HLSelectCode. */
#define HLM_SELECTCODE 1210
/** As HLM_GETCURDATA, for the code. */
#define HLM_GETCURCODE 1211
/** Computes the layout anew. Gives 1. */
#define HLM_RECALC 1224
/** Gives the current item, or -1. */
#define HLM_GETCURRENT 1234
/** wParam: c; below 0 for none. Makes it current and scrolls to it, without a notification. Gives 1. */
#define HLM_SETCURRENT 1235
/** wParam: c. HLIsSelected. */
#define HLM_ISSELECTED 1236
/** Gives the number of selected items; with single selection 1 or 0. */
#define HLM_GETSELCOUNT 1238
/** wParam: HLSEL_ mode. lParam: first and last c. Gives 1 if a state changed, else -4. */
#define HLM_SELECTRANGE 1239
/** wParam: room of lParam, an array of int. Fills it with the selected c in order and gives their number. */
#define HLM_GETSELITEMS 1240
/**
 * wParam: pixels; above 0 they stay. The number of visible columns and the scroll range follow with the next layout, as
 * by HLM_RECALC. Gives 1; 0 without HLS_MULTICOLUMN.
 */
#define HLM_SETCOLUMNWIDTH 1244
/** Gives the width of the visible columns in pixels. */
#define HLM_GETTOTALWIDTH 1245
/** wParam: c. lParam: RECT in client coordinates. Gives 1 if it is visible, else 0. */
#define HLM_GETITEMRECT 1246
/** Gives the width of a column in pixels. */
#define HLM_GETCOLUMNWIDTH 1247
/** Gives the first visible c. */
#define HLM_GETTOP 1254
/** wParam: c. Scrolls to it as far as there are items. Gives the first visible c. */
#define HLM_SETTOP 1255
/** wParam: rows, or with HLS_MULTICOLUMN columns, up below 0. Gives by how many the list scrolled. */
#define HLM_SCROLL 1257
/** wParam: number of tab stops. lParam: array of int, in pixels at 96 dpi; for one stop the stop itself. Gives 1. */
#define HLM_SETTABS 1258
/**
 * wParam: 0 stops painting and layout, non-zero goes on. lParam: repaint. Gives 1. Nothing is laid out by it: send
 * HLM_RECALC if items have come or gone meanwhile.
 */
#define HLM_SETREDRAW 1261
/** Gives the HLF_ and CF_ bits. */
#define HLM_GETFLAGS 1265
/** wParam: bits. lParam: 0 clears them, else they are set. Gives the flags. */
#define HLM_SETFLAGS 1266
/** Gives the style. */
#define HLM_GETSTYLE 1268

/* Notifications of the list: codes of WM_COMMAND. */

/** The user moved the current item. */
#define HLN_SELCHANGE 1
/** A double click. */
#define HLN_DBLCLK 2
/** The list has got the focus. */
#define HLN_SETFOCUS 4
/** The list has lost the focus. */
#define HLN_KILLFOCUS 5
/** Return. */
#define HLN_ENTER 257
/** Esc. */
#define HLN_ESCAPE 258
/** Tab. */
#define HLN_TAB 263
/** Shift+Tab. */
#define HLN_BACKTAB 264
/** F1. */
#define HLN_HELP 269

/**
 * Inserts an item.
 *
 * @param hwnd   A window that answers WWM_GETSTATE with a list's record.
 * @param index  Place; -1 or beyond the end appends. A sorted list finds its own.
 * @param data   The value, or the text.
 * @param code   The code; null without one.
 * @return Index of the new item; -1 without a list or data.
 */
int WINAPI HLInsertItemEx(HWND hwnd, int index, const void* data, const void* code);
/** HLInsertItemEx without a code. */
int WINAPI HLInsertItem(HWND hwnd, int index, const void* data);
/** HLInsertItemEx at the end. */
int WINAPI HLAddItemEx(HWND hwnd, const void* data, const void* code);
/** HLInsertItemEx at the end, without a code. */
int WINAPI HLAddItem(HWND hwnd, const void* data);
/**
 * Inserts many items and lays the list out once.
 *
 * @param index  Place of the first; below 0 appends.
 * @param n      Number of items; below 1 inserts none.
 * @param items  Values one behind the other, or for texts an array of pointers.
 * @param codes  Codes, likewise; null without.
 * @return Number of items inserted; -1 without a list or items.
 */
int WINAPI HLInsertItemsEx(HWND hwnd, int index, int n, const void* items, const void* codes);
/** HLInsertItemsEx without codes. */
int WINAPI HLInsertItems(HWND hwnd, int index, int n, const void* items);
/** HLInsertItemsEx at the end. */
int WINAPI HLAddItemsEx(HWND hwnd, int n, const void* items, const void* codes);
/** HLInsertItemsEx at the end, without codes. */
int WINAPI HLAddItems(HWND hwnd, int n, const void* items);
/**
 * Inserts an item whose data and code are given as texts: they are read into the list's types, the data by its format.
 *
 * @return Index of the new item; -1 without a list or data text.
 */
int WINAPI HLInsertStringEx(HWND hwnd, int index, const char* data, const char* code);
/** Deletes an item. Gives 1, or 0 for an index out of range. */
int WINAPI HLDeleteItem(HWND hwnd, int index);
/**
 * Deletes items.
 *
 * @param which    HLI_ selector.
 * @param n, list  What the selector reads. Settled: an index behind a deleted one isn't lowered by it.
 * @return Number of items deleted; 0 without a list.
 */
int WINAPI HLDeleteItems(HWND hwnd, int which, int n, const void* list);
/** Deletes all items and the selection, without a repaint. Gives 1, or 0 without a list. */
int WINAPI HLEmptyList(HWND hwnd);
/** Gives the first item with the data from start on and then from the beginning, or -1; 0 without a list. */
int WINAPI HLFindData(HWND hwnd, int start, const void* data);
/** As HLFindData, for the code; -1 in a list without codes. */
int WINAPI HLFindCode(HWND hwnd, int start, const void* code);
/** Copies an item's data; index -1 means the last item. Gives 1 if something was copied, else 0. */
int WINAPI HLGetData(HWND hwnd, int index, void* out);
/** As HLGetData, for the code. */
int WINAPI HLGetCode(HWND hwnd, int index, void* out);
/** HDLSetCode on the list's items. */
int WINAPI HLSetCode(HWND hwnd, int index, const void* code);
/**
 * Fetches items.
 *
 * @param n      What the selector reads.
 * @param kind   1 data, 2 codes, 4 indexes.
 * @param out    Values one behind the other, for texts an array of pointers to buffers, or an array of int.
 * @param which  HLI_ selector.
 * @param list   What the selector reads; not null, even where it reads nothing.
 * @return Number of items visited; 0 without a list.
 */
int WINAPI HLGetItems(HWND hwnd, int n, int kind, void* out, int which, const void* list);
/**
 * Selects an item by an HLSEL_ mode; the current item stays.
 *
 * @return 1 if its state changed, else 0, also for an index out of range. With single selection nothing changes, and the
 *         result is 1 where another mode than the item's state was given: HLSEL_SET of another item than the current
 *         one, HLSEL_CLEAR of the current one, HLSEL_TOGGLE of any.
 */
int WINAPI HLSelectItem(HWND hwnd, int index, int mode);
/**
 * Selects the items of an HLI_ selector. With single selection n counts as 1 at the most; selectors that don't read n
 * visit all the same. Gives the number visited.
 */
int WINAPI HLSelectItems(HWND hwnd, int mode, int which, int n, const void* list);
/**
 * Selects the first item with the data. With single selection it, or none, becomes the current one.
 *
 * @return 1 if the item was found (single selection) or its state changed, else 0.
 * @note Settled: without single selection, data of no item are selected as item -1, which gives 1 and counts in
 *       HLM_GETSELCOUNT and HLM_GETSELITEMS. HLFindData tells beforehand.
 */
int WINAPI HLSelectData(HWND hwnd, const void* data, int mode);
/** As HLSelectData, by the code. */
int WINAPI HLSelectCode(HWND hwnd, const void* code, int mode);
/** Gives 1 if the item is selected, else 0. */
int WINAPI HLIsSelected(HWND hwnd, int index);
/**
 * Sets the buffer into which the current item's data are copied whenever another item becomes current, and at once if
 * there is a current item.
 *
 * @param link     Buffer with room for any item; null for none.
 * @param fSelect  Non-zero: the item with the buffer's value is selected first.
 * @return 1; 0 without a list.
 */
int WINAPI HLSetDataLink(HWND hwnd, void* link, int fSelect);
/** As HLSetDataLink, for the code. */
int WINAPI HLSetCodeLink(HWND hwnd, void* link, int fSelect);
/** Gives the list's items, for HLSetList of another list; null without a list. */
DataList* WINAPI HLGetList(HWND hwnd);
/**
 * Shows another holder's items, which have to live longer than this list. A format that one of the two is given later
 * isn't the other's: that one goes on with what it had, until it is given the items once more.
 *
 * @return 1; 0 without a list or for null.
 */
int WINAPI HLSetList(HWND hwnd, DataList* list);
/** Window procedure of the list. */
LRESULT CALLBACK HListWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
/** Message handler of the list, for windows that inherit its behaviour; record: one that it has made. */
LRESULT CALLBACK HListMsgHandler(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault, void* record);

/*
 * Combo control
 *
 * The class "HComb": a face, which is a typed edit or a list of one row, and a list that drops below it or lies there.
 * The window text is "%", the height of the list in pixels at 96 dpi, optionally "%" and its least width, then the type
 * text of the list; "#" in place of the first "%" keeps HLS_CODECURRENT from the list. Without a height there is no
 * list. The messages of combo boxes (CB_) and those of edit and list controls are answered too.
 * All style bits but those that creation takes out are the lists' too: there HCS_WANTKEYS is HLS_WANTKEYS, HCS_READONLY
 * HLS_MULTICOLUMN, HCS_NOBUTTON HLS_CODECURRENT, HCS_XBUTTON HLS_NOSCROLL, and HCS_STACKED HLS_HOTTRACK.
 */

/** The list drops; otherwise it lies below the face. Style bit. */
#define HCS_DROPDOWN 0x0001
/** The face is an edit; otherwise a field list. Style bit. */
#define HCS_EDIT 0x0008
/** Face and list draw sunken borders of their own. Style bit. */
#define HCS_3DBORDER 0x0010
/** A brush of its own while focused. Style bit. */
#define HCS_FOCUSBRUSH 0x0020
/** An item's text has columns, separated by tabs: the edit shows the first one. Style bit. */
#define HCS_TABS 0x0080
/** The edit is read-only. Style bit. */
#define HCS_READONLY 0x0200
/** The edit is static: it can't be selected, a click drops the list. Style bit. */
#define HCS_STATIC 0x0400
/** Return, Esc and Tab are notified. Style bit. */
#define HCS_WANTKEYS 0x1000
/** No drop button, and F4 doesn't open; the extra button stands in its place. Style bit. */
#define HCS_NOBUTTON 0x2000
/** An extra button at the right edge, beside the drop button. Style bit. */
#define HCS_XBUTTON 0x4000
/** An extra button below the drop button, each of half the height. Style bit. */
#define HCS_STACKED 0x8000

/** The list is open. Bit of ControlHeader.wFlags. */
#define HCF_DROPPED 0x0001
/** The drop button looks pressed. Bit of ControlHeader.wFlags. */
#define HCF_BTNDOWN 0x0002
/** The drop button is under the mouse, or held. Bit of ControlHeader.wFlags. */
#define HCF_BTNHOT 0x0004
/** The mouse is held for a button. Bit of ControlHeader.wFlags. */
#define HCF_CAPTURE 0x0008
/** The extra button looks pressed. Bit of ControlHeader.wFlags. */
#define HCF_XBTNDOWN 0x4000
/** The extra button is under the mouse, or held. Bit of ControlHeader.wFlags. */
#define HCF_XBTNHOT 0x8000

/** The list follows the face. Option. */
#define HCO_CHILDTOLIST 1
/** The face follows the list. Option. */
#define HCO_LISTTOCHILD 2

/*
 * Messages of the combo. Those of the edit control and of the list control go on to face and list: numbers below 1174 to
 * the face, the others to the list; without a list they give 0.
 */

/** The face got the focus. Gives 1. A name of WWM_CHILDFOCUS. */
#define HCM_CHILDFOCUS 1145
/** The face lost the focus. Gives 1. A name of WWM_CHILDBLUR. */
#define HCM_CHILDBLUR 1146
/** wParam: key that the face got with Alt. Up and down toggle the list. Gives 1 then, else 0. */
#define HCM_SYSKEY 1275
/** Gives the height of the list in pixels, at 96 dpi when it drops. */
#define HCM_GETDROPHEIGHT 1297
/**
 * wParam: 0 takes the list away, 1 brings it back, each giving the width of HCM_GETDROPWIDTH; else the height of the
 * list in pixels, at 96 dpi when it drops, which gives 1. A list that lies open takes what the face leaves.
 */
#define HCM_SETDROP 1298
/** Gives the least width of the dropped list in pixels at 96 dpi. */
#define HCM_GETDROPWIDTH 1299
/** wParam: least width of the dropped list in pixels at 96 dpi. Gives 1; 0 without HCS_DROPDOWN. */
#define HCM_SETDROPWIDTH 1300
/** lParam: HCSetList's list; null computes the layout anew. */
#define HCM_SETLIST 1302
/** wParam: HCO_ bits. Gives 1. */
#define HCM_SETOPTIONS 1303

/* Notifications of the combo: codes of WM_COMMAND. */

/** The value moved between face and list. */
#define HCN_SELCHANGE 1
/** A double click in the list of a combo with an edit. */
#define HCN_DBLCLK 2
/** The face has got the focus. */
#define HCN_SETFOCUS 3
/** The face has lost the focus. */
#define HCN_KILLFOCUS 4
/** The edit's text has changed, before the list follows. */
#define HCN_EDITCHANGE 5
/** The edit's text is about to be shown changed. */
#define HCN_EDITUPDATE 6
/** The list is about to open. */
#define HCN_DROPDOWN 7
/** The list has closed. */
#define HCN_CLOSEUP 8
/** The user has accepted a row. */
#define HCN_SELENDOK 9
/** The extra button was released inside itself; or F5 was pressed where there is an extra button. */
#define HCN_XBUTTON 11
/** Return while closed, under HCS_WANTKEYS. */
#define HCN_ENTER 257
/** Esc while closed, under HCS_WANTKEYS. */
#define HCN_ESCAPE 258
/** Tab under HCS_WANTKEYS. */
#define HCN_TAB 263
/** Shift+Tab under HCS_WANTKEYS. */
#define HCN_BACKTAB 264

/* The next functions take a combo's window. They give -1 where it has no list, HCDeleteItems 0. The face follows. */

/** HLAddItemEx on the combo's list. */
int WINAPI HCAddItemEx(HWND hwnd, const void* data, const void* code);
/** HCAddItemsEx without codes. */
int WINAPI HCAddItems(HWND hwnd, int n, const void* items);
/** HLAddItemsEx on the combo's list. */
int WINAPI HCAddItemsEx(HWND hwnd, int n, const void* items, const void* codes);
/** HLDeleteItems on the combo's list. */
int WINAPI HCDeleteItems(HWND hwnd, int which, int n, const void* list);
/** HLGetItems on the combo's list. */
int WINAPI HCGetItems(HWND hwnd, int n, int kind, void* out, int which, const void* list);
/** HLInsertItemEx on the combo's list. */
int WINAPI HCInsertItemEx(HWND hwnd, int index, const void* data, const void* code);
/** HCInsertItemsEx without codes. */
int WINAPI HCInsertItems(HWND hwnd, int index, int n, const void* items);
/** HLInsertItemsEx on the combo's list. */
int WINAPI HCInsertItemsEx(HWND hwnd, int index, int n, const void* items, const void* codes);
/** HLInsertStringEx on the combo's list. */
int WINAPI HCInsertStringEx(HWND hwnd, int index, const char* data, const char* code);
/** Gives the items of the combo's list, for HCSetList of another combo; null without a record or a list. */
DataList* WINAPI HCGetList(HWND hwnd);
/** Shows another holder's items, which have to live longer than this combo. Gives 1; 0 without a record or a list. */
int WINAPI HCSetList(HWND hwnd, DataList* list);
/**
 * Reads a height "%" and digits at *text, which moves behind it.
 *
 * @return The number, which may be 0. Without one, or for a text shorter than three characters: 0, and *text stays.
 */
int WINAPI GetDropHeight(const char** text);
/** Window procedure that a combo gives its face. */
LRESULT CALLBACK HCFilter(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
/** Window procedure of the class "HComb". */
LRESULT CALLBACK HCombWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
/** Message handler of the combo, for use with HandleMsg at offset 0. */
LRESULT CALLBACK HCombMsgHandler(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault, void* record);
/** Window procedure of the class "HDrop", the list of a combo. Its second extra word holds the face's window. */
LRESULT CALLBACK HDropWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
/** Mouse hook while a list is dropped: it keeps the mouse from other windows, and a press there closes the list. */
LRESULT CALLBACK MouseHookProc(int code, WPARAM message, LPARAM hookData);

#ifdef __cplusplus
}
#endif

#endif
