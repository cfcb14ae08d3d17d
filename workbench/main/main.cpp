#include "workbench/main/command_line.h"

int main(int count, char** arguments) {
    return workbench::runCommandLine(count, arguments);
}
