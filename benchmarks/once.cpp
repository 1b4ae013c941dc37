// Writes each file just once: reads it from the reference folder and writes it to the language
// folder. What a procedure without the rewriting in place could reach.

#include "yardstick.h"

int main(int argumentCount, char** arguments) {
    return yardstick::run(argumentCount, arguments, yardstick::copyFolder);
}
