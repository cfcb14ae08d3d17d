#include "workbench/desktop/app/desktop_application.h"

int main(int count, char** arguments) {
    return workbench::desktop::runDesktop(count, arguments);
}
