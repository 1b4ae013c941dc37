// Does nothing: the time to start and end a process.
int main() {}
