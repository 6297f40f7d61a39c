#include <zenvora/lumidex/IFileAccessLocker.h>
#include <zenvora/lumidex/ISimilarDataSource.h>
#include <zenvora/lumidex/ITransactionManager.h>
#include <zenvora/lumidex/IUIController.h>
#include <zenvora/lumidex/IUndo.h>

namespace Zenvora::Lumidex {

// Here, so that their type information lies in one library.
IFileAccessLocker::~IFileAccessLocker() = default;
ISimilarDataSource::~ISimilarDataSource() = default;
ITransaction::~ITransaction() = default;
ITransactionManager::~ITransactionManager() = default;
IUIController::~IUIController() = default;
IUndo::~IUndo() = default;

}  // namespace Zenvora::Lumidex
