# A filter through which Doxygen reads the headers.

# Leaves out constructors, copies and destructors that do the usual. Where copying has a meaning of its own, the
# comment of the class says so.
s/^ .*= (default|delete);.*//
s/^ +(KESTRIN_EXPORT )?(virtual )?~.*[;}]$//
s/^ +(KESTRIN_EXPORT )?(\w+)\((const \2&( \w+)?)?\)( :.*\}|;)$//
s/^ +(KESTRIN_EXPORT )?(\w+)& operator=\(const \2&( \w+)?\);$//

# Members that exist only because hosts expect the layout.
s|^( +[^/]* m_[a-z]*_?(Spare\|Unset\|Extra\|Reserved)[A-Za-z]*[0-9]?( = [^;]+)?;)$|\1  ///< never filled|
