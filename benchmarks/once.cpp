// Reads each file from the reference folder and writes it to the language folder, once. The lower
// bound of a program that does not rewrite copies.
#include "yardstick.h"

int main(int argumentCount, char** arguments) {
    return cvlang::yardstick::Run(argumentCount, arguments, cvlang::yardstick::CopyFolder);
}
