#include <VxMFCEmu/sys/tls.h>

#include <pthread.h>

DWORD TlsAlloc_E()
{
    pthread_key_t key = 0;
    return pthread_key_create(&key, nullptr) == 0 ? key : TLS_OUT_OF_INDEXES;
}

LPVOID TlsGetValue_E(DWORD dwTlsIndex) { return pthread_getspecific(dwTlsIndex); }

int TlsSetValue_E(DWORD dwTlsIndex, LPVOID pValue)
{
    return pthread_setspecific(dwTlsIndex, pValue);
}

BOOL TlsFree_E(DWORD dwTlsIndex) { return pthread_key_delete(dwTlsIndex) == 0 ? TRUE : FALSE; }
