#pragma once

#include <cstdint>

/// How an import ended. The code is what callers compare; the message is for people.
struct ImportStatus {
  std::uint32_t code;
  const char* message; ///< Portuguese, UTF-8, static

  [[nodiscard]] constexpr bool operator==(const ImportStatus& other) const { return code == other.code; }
};

constexpr ImportStatus importCancelled{0, "Importação cancelada"};
constexpr ImportStatus importRefused{1, "Não é possível importar projeto de planejamento tático"};
constexpr ImportStatus importInvalid{2, "Projeto inválido"};
constexpr ImportStatus importSucceeded{3, "Importação realizada com sucesso"};
