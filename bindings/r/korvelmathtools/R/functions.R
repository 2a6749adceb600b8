# One function of R for each flat function.
for (.name in names(.functions)) assign(.name, .flat(.name))
rm(.name)
