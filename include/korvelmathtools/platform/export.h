/**
 * @file
 * How a routine becomes part of the library's interface. Everything not marked stays inside.
 */
#ifndef KORVEL_PLATFORM_EXPORT_H
#define KORVEL_PLATFORM_EXPORT_H

/* KORVEL_API marks a core routine, exported under its C++ signature. */
#if !defined(_WIN32)
#define KORVEL_API __attribute__((visibility("default")))
#elif defined(KORVEL_BUILDING)
#define KORVEL_API __declspec(dllexport)
#else
#define KORVEL_API
#endif

/* KORVEL_TYPE marks a class template of which exported templates take instances as arguments: off Windows a
 * template is no more visible than its arguments. The members are not exported by it, as long as they are
 * inline or not instantiated as a whole class. */
#if defined(_WIN32)
#define KORVEL_TYPE
#else
#define KORVEL_TYPE __attribute__((visibility("default")))
#endif

/* KORVEL_FLAT marks a flat function, exported undecorated. On Windows the module definition file exports
 * these. */
#if defined(__cplusplus)
#define KORVEL_FLAT_LINKAGE extern "C"
#else
#define KORVEL_FLAT_LINKAGE
#endif
#if defined(_WIN32)
#define KORVEL_FLAT KORVEL_FLAT_LINKAGE
#else
#define KORVEL_FLAT KORVEL_FLAT_LINKAGE __attribute__((visibility("default")))
#endif

#endif
