// A program that exists for the headers that are precompiled for it; the test programs are compiled with
// them, too.

int main() {
    return 0;
}
