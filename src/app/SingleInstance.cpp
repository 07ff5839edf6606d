#include "app/SingleInstance.h"

bool SingleInstance::Claim() {
    if (mutex_) return true;
    KernelHandle mutex(CreateMutexW(nullptr, FALSE, L"Local\\Kelmorra.Instance"));
    if (GetLastError() == ERROR_ALREADY_EXISTS) return false;
    mutex_ = std::move(mutex);
    return true;
}
