#include <zenvora/app/Application.h>

#include <iostream>

int main() {
  std::cout << Zenvora::App::GetPathToResources();
}
