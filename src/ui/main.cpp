#include "ui/startup/startup.h"

int main(int argc, char *argv[])
{
    return runDesktopProgram(argc, argv);
}
