#pragma once

#include <zenvora/lumidex/Export.h>

#include <memory>
#include <string>

namespace Zenvora::Lumidex {

/// Writes that stand together or not at all. Destroying one that was not committed takes them back.
///
/// The order of the virtual operations is part of the binary interface: the destructor, then as declared.
class ZENVORA_LUMIDEX_EXPORT ITransaction {
 public:
  // Declared first: slots follow the order of declaration.
  virtual ~ITransaction();

  /// Takes the writes back now. Nothing happens when the transaction has ended already.
  virtual void Rollback() = 0;
  /// Makes the writes last. Throws what derives from `Exception` when they cannot; they are taken back then.
  virtual void Commit() = 0;

 protected:
  ITransaction() = default;
  ITransaction(const ITransaction&) = default;
  ITransaction& operator=(const ITransaction&) = default;
};

/// Begins transactions on one store, for one thread.
///
/// The order of the virtual operations is part of the binary interface: the destructor, then as declared.
class ZENVORA_LUMIDEX_EXPORT ITransactionManager {
 public:
  // Declared first: slots follow the order of declaration.
  virtual ~ITransactionManager();

  /// `name`: what is being done, for messages and logs. Never null. The transaction must not outlive the
  /// manager. Blocks while others write to the store; throws what derives from `Exception` when it cannot
  /// begin, such as while another one of this manager is open.
  virtual std::unique_ptr<ITransaction> BeginTransaction(const std::string& name) = 0;

 protected:
  ITransactionManager() = default;
  ITransactionManager(const ITransactionManager&) = default;
  ITransactionManager& operator=(const ITransactionManager&) = default;
};

}  // namespace Zenvora::Lumidex
