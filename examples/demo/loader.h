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
    int         size = 0; // bytes of a value
};

std::vector<Column> ColumnsOf(HWND grid);

// Appends the rows of a file. What can't be read stays empty, is told in problems, and the rest goes on.
// The result is the number of rows added.
int LoadRows(HWND grid, const std::string& path, std::vector<Problem>& problems);
