# Words for what a header does not describe because every reader knows it: copies, comparisons, the setter below a getter,
# and iterators. They go on the same line, so that line numbers stay. A line below a comment remains as it is.
$!N
/^ *\/\/\/.*\n/!{
  s/\n(    ([A-Za-z]+)\( (const )?\2&&? a_other \))/\n    \/** Copies or moves. *\/ \1/
  s/\n(    [A-Za-z]+& operator=\()/\n    \/** Copies or moves. *\/ \1/
  s/\n(    void Set([A-Za-z]+)\( )/\n    \/** Sets what the function above returns. *\/ \1/
  s/\n(    bool operator[!=]=\()/\n    \/** Compares. *\/ \1/
  s/\n(    const_iterator end\(\))/\n    \/** Behind the last element. *\/ \1/
  s/\n(    using (const_iterator|iterator_category|value_type|difference_type|pointer|reference) = )/\n    \/** As in the standard library. *\/ \1/
  s/\n(    [a-z_]+&? operator(\*|->|\+\+)\()/\n    \/** As in the standard library. *\/ \1/
}
P
D
