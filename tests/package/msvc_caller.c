/* A caller that no runtime of a compiler stands behind, so that any linker of Windows objects can link it.
   Its exit code is the number of failures. */
double VB_V_Sum(const double* x, int n, const short int* iMissing, const double* w);
int KORVEL_Version(void);
void ExitProcess(unsigned int code);

/* The mark of a program that uses floating-point numbers. */
int _fltused = 0;

void start(void)
{
    static const double values[] = {1.0, 2.0, 4.0, 8.0};
    static const double weights[] = {1.0, 0.5, 2.0, 1.0};
    unsigned int failures = VB_V_Sum(values, 4, 0, weights) != 18.0;
    failures += KORVEL_Version() < 100;
    ExitProcess(failures);
}
