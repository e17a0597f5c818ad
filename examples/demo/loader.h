// Fills a grid from a file of comma-separated values, each field by the type of its column.
#pragma once

#include <widgets/widgets.h>

#include <string>
#include <vector>

// A place in the file that could not be taken over as it stands.
struct Problem {
    std::string file;
    int         line = 0;
    std::string column;
    std::string message;
};

std::string TextOf(const Problem& problem);

// A column of the grid, as the grid tells it.
struct Column {
    std::string title;
    std::string format;
    char        dataClass = 0;
    char        dataType = 0;
    int         size = 0;       // bytes of a value
    HWND        list = nullptr; // where cells store codes: the list that has the texts to them
};

std::vector<Column> ColumnsOf(HWND grid);
bool                IsNumber(const Column& column);
// The text of a stored code; empty for one that the column's list doesn't have.
std::string TextOfCode(const Column& column, const void* code);

// Why a text can't be a value of the column; empty if it can. The value goes to bytes, a text that is too long cut.
std::string ParseField(const Column& column, const std::string& text, std::vector<char>& bytes);

struct Table;
// Appends the rows of the table's file. What can't be read stays empty, is told in problems, and the rest goes on.
// False if there is nothing that rows could belong to.
bool LoadRows(HWND grid, Table& table, std::vector<Problem>& problems);
