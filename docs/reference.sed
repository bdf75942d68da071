# A filter through which Doxygen reads the headers.

# Constructors, copies and destructors that do what is usual are left out; where copying means something of its own,
# the comment of the class says so.
s/^ .*= (default|delete);.*//
s/^ +(virtual )?~.*[;}]$//
s/^ +(\w+)\((const \1&( \w+)?)?\)( :.*\}|;)$//
s/^ +(\w+)& operator=\(const \1&( \w+)?\);$//

# Members whose names say it all, as the comments of their files tell.
s|^( +[^/]* m_[nds]Value([0-9]+)( = [^;]+)?;)$|\1  ///< value \2 of its line|
s|^( +[^/]* m_[a-z]*_?(Spare\|Unset\|Extra\|Reserved)[A-Za-z]*[0-9]?( = [^;]+)?;)$|\1  ///< nothing fills it|

# Members that several geometries have.
s|^( +CString m_sName;)$|\1  ///< its name|
s|^( +CString m_sUnits;)$|\1  ///< the unit of its lengths|
s|^( +.* m_pDrawObjs = [^;]+;)$|\1  ///< its drawing objects|
s|^( +.* m_pTexts = [^;]+;)$|\1  ///< its texts|
s|^( +.* m_pAdds = [^;]+;)$|\1  ///< the geometries that it adds|
s|^( +.* m_pDrills = [^;]+;)$|\1  ///< plated holes|
s|^( +.* m_pUnplatedDrills = [^;]+;)$|\1  ///< holes without plating|
s|^( +.* m_p(Routing\|Trace\|Via)Keepouts = [^;]+;)$|\1  ///< one for each attribute line|
