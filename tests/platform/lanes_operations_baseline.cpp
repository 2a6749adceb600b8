#define KORVEL_TEST_SET baseline
#include "platform/lanes_operations.inc"
