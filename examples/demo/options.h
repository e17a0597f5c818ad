// What the command line asks for.
#pragma once

#include <string>
#include <vector>

// A change to make after loading. Rows count from 1; the one behind the last adds a record.
struct Change {
    bool        deletes = false; // the row goes
    int         row = 0;
    std::string column; // its title
    std::string text;
};

struct Options {
    std::string definition = "birdstrikes.grs"; // the columns
    std::string csv = "birdstrikes.csv";        // the rows
    int         generated = -1;                 // --virtual N: N generated records in place of the file
    bool        reportOnly = false;             // --report: load, tell the problems, leave
    std::vector<Change> changes;                // --set, --clear and --delete, in their order
    std::string save;                           // --save FILE: where to save after the changes
    std::string error;                          // what is wrong with the command line, or empty
};

// File names that the command line doesn't give stand beside the program, in folder.
Options ReadOptions(int count, char** arguments, const std::string& folder);

extern const char* const usage;
