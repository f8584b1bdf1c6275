// Export macro for the public classes of the tarvola shared library.
//
// Inside the library build (TARVOLA_BUILDING) symbols are exported; a host
// that links the DLL imports them; a static build (TARVOLA_STATIC) needs
// neither. Elsewhere the library is compiled with hidden visibility, so only
// what carries TARVOLA_API is reachable from outside.
#ifndef TARVOLA_EXPORT_H
#define TARVOLA_EXPORT_H

#if defined(_WIN32) || defined(__CYGWIN__)
#  if defined(TARVOLA_STATIC)
#    define TARVOLA_API
#  elif defined(TARVOLA_BUILDING)
#    define TARVOLA_API __declspec(dllexport)
#  else
#    define TARVOLA_API __declspec(dllimport)
#  endif
#else
#  define TARVOLA_API __attribute__((visibility("default")))
#endif

#endif
