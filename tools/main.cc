// orvalis: the command-line host of the engine.
int main() { return 0; }
