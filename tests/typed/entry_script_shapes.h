// The shapes of the classes whose models fill sources of their own.
#pragma once

#include "entry_script.h"

std::vector<ScriptShape> NumberScriptShapes(char dataClass);
std::vector<ScriptShape> CalculatorScriptShapes();
std::vector<ScriptShape> DateScriptShapes(char dataClass);

std::string ScriptDateText(int year, int month, int day, int hour, int minute, int second);
