<?xml version="1.0" encoding="utf-8"?>
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform" xmlns:fo="http://www.w3.org/1999/XSL/Format">
  <xsl:template match="/customer">
    <fo:block>Dear <xsl:value-of select="name"/>, please pay <xsl:value-of select="amount"/>.</fo:block>
  </xsl:template>
</xsl:stylesheet>
