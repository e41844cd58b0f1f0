// A program that exists for the headers that are precompiled for it, and by which the test programs are compiled too.

int main() {
    return 0;
}
