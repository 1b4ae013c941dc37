// Does nothing: what starting and ending a program takes.
int main() {}
