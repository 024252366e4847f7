// The compiled headers need a program that they belong to; the tests take them from it.
int main() {
  return 0;
}
