// A program that does nothing, for what is only linked.

int main() {
    return 0;
}
