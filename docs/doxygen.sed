# Words for what a header does not describe because every reader knows it: copies, comparisons, the setter below a getter,
# iterators, and functions that follow one that describes them all. They go on the same line, so that line numbers stay. A
# line below a comment remains as it is.
# Links between documents are not links of these pages.
s/\[([^]]*)\]\([^)]*\.md[^)]*\)/\1/g
$!N
# Not for readers, and taken for a function.
s/\nQ_DECLARE_TYPEINFO\([^\n]*/\n/
/^ *\/\/\/.*\n/!{
  s/\n(    ([A-Za-z]+)\( (const )?\2&&? a_other \))/\n    \/** Copies or moves. *\/ \1/
  s/\n(    [A-Za-z]+& operator=\()/\n    \/** Copies or moves. *\/ \1/
  s/\n(    void Set([A-Za-z]+)\( )/\n    \/** Sets what the function above returns. *\/ \1/
  s/\n(    bool operator[!=]=\()/\n    \/** Compares. *\/ \1/
  s/\n(    const_iterator end\(\))/\n    \/** Behind the last element. *\/ \1/
  s/\n(    using (const_iterator|iterator_category|value_type|difference_type|pointer|reference) = )/\n    \/** As in the standard library. *\/ \1/
  s/\n(    [a-z_]+&? operator(\*|->|\+\+)\()/\n    \/** As in the standard library. *\/ \1/
  s/\n(    const PimContactCard\* begin\(\))/\n    \/** The first element. *\/ \1/
  s/\n(    const PimContactCard\* end\(\))/\n    \/** Behind the last element. *\/ \1/
  s/\n(    const PimContactCard& CardAt\()/\n    \/** The card that At() makes a contact of. *\/ \1/
  s/\n(    (explicit )?PimContact[A-Z][a-z]+\( (const Q|Kind |Sex ))/\n    \/** Creates a field with these values. *\/ \1/
  s/\n(    int Add[A-Z][a-z]+\( const PimContact)/\n    \/** See AddPhone(). *\/ \1/
  s/\n(    QString [A-Za-z]+\(\) const \{ return Part\( )/\n    \/** The component of this name, see Part(). *\/ \1/
  s/\n(    PimContactList<PimContact[A-Z][a-z]+> [A-Za-z]+\(\) const;)/\n    \/** The properties of this name. *\/ \1/
  s/\n(    PimContactKinds Kinds\(\) const;)/\n    \/** What it is for. *\/ \1/
  s/\n(    QStringList Languages\(\) const;)/\n    \/** What SetLanguages() was called with. *\/ \1/
  s/\n(    QString (Mailer|ProductId|PhoneticGiven|PhoneticMiddle)\(\) const;)/\n    \/** See the function above. *\/ \1/
  s/\n(    (Kind EventKind|Sex SexOf)\(\) const;)/\n    \/** Which one it is. *\/ \1/
  s/\n(    enum class (Kind|Sex))$/\n    \/** Which one it is. *\/ \1/
}
P
D
